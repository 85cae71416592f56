#include "ViewControllers/ResultBox.h"

#include "ViewControllers/BusyPointer.h"

#include <QMessageBox>

namespace Quillmont::Utility::ViewControllers {

void showInformation(const QString &title, const QString &text)
{
    const BusyPointerPause pause;
    QMessageBox::information(nullptr, title, text, QMessageBox::Ok);
}

} // namespace Quillmont::Utility::ViewControllers
