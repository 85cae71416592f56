#ifndef SIMDETECT_DETECTIONLOG_H
#define SIMDETECT_DETECTIONLOG_H

#include <QLoggingCategory>

namespace Quillmont::SimDetect {

/// Debug lines about the search for simulators: why a candidate was turned down.
/// "orbwell.detection".
Q_DECLARE_LOGGING_CATEGORY(detectionLog)

} // namespace Quillmont::SimDetect

#endif
