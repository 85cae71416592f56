#ifndef SIMDETECT_DETECTIONLOG_H
#define SIMDETECT_DETECTIONLOG_H

#include <QLoggingCategory>

namespace Quillmont::SimDetect {

/// "orbwell.detection": why a folder was not taken for a simulator's.
Q_DECLARE_LOGGING_CATEGORY(detectionLog)

} // namespace Quillmont::SimDetect

#endif
