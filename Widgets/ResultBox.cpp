#include "Widgets/ResultBox.h"

#include "Widgets/BusyPointer.h"
#include "Widgets/FittingBox.h"
#include "Widgets/WorkProgress.h"

#include <QMessageBox>

namespace Quillmont::Utility::Widgets {

void showInformation(const QString &title, const QString &text)
{
    const WorkProgressPause withoutProgress;
    const BusyPointerPause pause;
    const FittingBox fitting;
    QMessageBox::information(nullptr, title, text, QMessageBox::Ok);
}

} // namespace Quillmont::Utility::Widgets
