#include "ViewControllers/ResultBox.h"

#include "ViewControllers/BusyPointer.h"

#include <QMessageBox>

namespace Quillmont::Utility::ViewControllers {

namespace {

// No screen holds more, and the toolkit takes minutes to lay out a path of a million characters,
// which a record can name.
constexpr int longestText = 20000;

QString shown(const QString &text)
{
    return text.size() > longestText ? text.left(longestText) + QChar(0x2026) : text;
}

} // namespace

void showInformation(const QString &title, const QString &text)
{
    const BusyPointerPause pause;
    QMessageBox::information(nullptr, title, shown(text), QMessageBox::Ok);
}

} // namespace Quillmont::Utility::ViewControllers
