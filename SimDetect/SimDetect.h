#ifndef SIMDETECT_SIMDETECT_H
#define SIMDETECT_SIMDETECT_H

#include <QMap>
#include <QString>

namespace Quillmont::SimDetect {

struct Environment;

/// Simulator code to installation folder (absolute, "/"-separated, without a trailing slash) of
/// each simulator installed on this computer. Only reads files, and starts no program.
QMap<QString, QString> GetAllSimPaths();

/// The same for the computer that @p environment describes.
QMap<QString, QString> simPaths(const Environment &environment);

} // namespace Quillmont::SimDetect

#endif
