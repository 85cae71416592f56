#ifndef SIMDETECT_XPLANE_XPLANELIST_H
#define SIMDETECT_XPLANE_XPLANELIST_H

#include "SimDetect/Candidate.h"

#include <QString>
#include <QVector>

namespace Quillmont::SimDetect {

/// Reads a list of installations that X-Plane writes: one folder per line, deleted ones included.
class XPlaneList
{
public:
    /// The folders that the file at @p path lists, in order. A missing file lists none; one that
    /// cannot be read within the read budget @p allowance is the only candidate, with its
    /// objection.
    static QVector<Candidate> read(const QString &path, qint64 &allowance);
};

} // namespace Quillmont::SimDetect

#endif
