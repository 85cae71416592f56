#ifndef SIMDETECT_SIMDETECT_H
#define SIMDETECT_SIMDETECT_H

#include <QMap>
#include <QString>

namespace Quillmont::SimDetect {

struct Environment;

/// Simulator code to installation folder (absolute, "/"-separated, no slash at its end) of each
/// simulator that really is on this computer. Only reads, and starts no program.
QMap<QString, QString> GetAllSimPaths();

/// The same for the computer that @p environment describes.
QMap<QString, QString> simPaths(const Environment &environment);

} // namespace Quillmont::SimDetect

#endif
