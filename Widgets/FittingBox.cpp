#include "Widgets/FittingBox.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>

#include <algorithm>
#include <memory>

namespace Quillmont::Utility::Widgets {

namespace {

constexpr int minHeight = 64;

// The size that the window frame leaves on the screen where Qt opens the box.
QSize room()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen->availableSize() * 9 / 10;
}

// A view lays out only the visible lines, but each as a whole, which takes long for lines far
// longer than any path.
QString withEveryLineShort(const QString &text)
{
    constexpr int longest = 5000;
    QString lines;
    lines.reserve(text.size() + text.size() / longest);
    int length = 0;
    for (const QChar character : text) {
        length = character == u'\n' ? 0 : length + 1;
        if (length > longest && !character.isLowSurrogate()) {
            lines += u'\n';
            length = 1;
        }
        lines += character;
    }
    return lines;
}

// The label keeps the text but is hidden.
QPlainTextEdit *putIntoView(QLabel *text, QMessageBox *box)
{
    constexpr int wide = 600;
    auto *view = new QPlainTextEdit(withEveryLineShort(text->text()), box);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setMinimumWidth(std::min(wide, room().width() / 2));
    view->setFixedHeight(minHeight);
    view->setAccessibleName(box->windowTitle());

    const std::unique_ptr<QLayoutItem> replaced(box->layout()->replaceWidget(text, view));
    text->hide();
    view->show();
    return view;
}

// A box computes its size only when it is about to be shown, and then once more.
void layOut(QMessageBox *box)
{
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(box, &request);
    box->layout()->activate();
}

QLabel *textOf(const QMessageBox *box)
{
    return box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
}

void fit(QMessageBox *box)
{
    layOut(box);
    auto *view = box->findChild<QPlainTextEdit *>();
    if (!view && textOf(box) && box->height() > room().height()) {
        view = putIntoView(textOf(box), box);
        layOut(box);
    }
    if (view)
        view->setFixedHeight(std::max(minHeight, minHeight + room().height() - box->height()));
}

// Qt needs minutes to lay out a label with a line of a million characters.
bool isTooLongForLabel(const QMessageBox *box)
{
    constexpr int longest = 20000;
    return textOf(box) && box->text().size() > longest && !box->findChild<QPlainTextEdit *>();
}

} // namespace

FittingBox::FittingBox(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool FittingBox::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (box && event->type() == QEvent::Polish && isTooLongForLabel(box))
        putIntoView(textOf(box), box);
    else if (box && event->type() == QEvent::Show)
        fit(box);
    return false;
}

} // namespace Quillmont::Utility::Widgets
