#include "SimDetect/DetectionLog.h"

namespace Quillmont::SimDetect {

Q_LOGGING_CATEGORY(detectionLog, "orbwell.detection")

} // namespace Quillmont::SimDetect
