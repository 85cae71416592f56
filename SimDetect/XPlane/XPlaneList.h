#ifndef SIMDETECT_XPLANE_XPLANELIST_H
#define SIMDETECT_XPLANE_XPLANELIST_H

#include "SimDetect/Candidate.h"

#include <QString>
#include <QVector>

namespace Quillmont::SimDetect {

/// Reads a list of installations that X-Plane writes: one folder a line, the dead ones too.
class XPlaneList
{
public:
    /// The folders that the file at @p path lists, in its order. A missing file lists none; one
    /// that cannot be read within the @p allowance is the only candidate, with its objection.
    static QVector<Candidate> read(const QString &path, qint64 &allowance);
};

} // namespace Quillmont::SimDetect

#endif
