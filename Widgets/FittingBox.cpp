#include "Widgets/FittingBox.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <memory>

namespace Quillmont::Utility::Widgets {

namespace {

// What the window's frame leaves of the screen that Qt opens the box on.
QSize room()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen->availableSize() * 9 / 10;
}

// A box wraps its lines only if it would be wide otherwise, and wide is what long lines need.
int areaWidth(const QLabel &text, const QScrollArea &area, int maxWidth)
{
    constexpr int wide = 600;
    const int own = text.width() + area.verticalScrollBar()->sizeHint().width();
    return std::min(text.wordWrap() ? std::max(own, wide) : own, maxWidth);
}

void putIntoScrollArea(QLabel *text, QMessageBox *box, int height)
{
    auto *area = new QScrollArea(box);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setMinimumWidth(areaWidth(*text, *area, room().width() - box->width() + text->width()));
    area->setFixedHeight(height);
    area->setAccessibleName(box->windowTitle());

    const std::unique_ptr<QLayoutItem> replaced(box->layout()->replaceWidget(text, area));
    area->setWidget(text);
    area->show();
}

// A box knows its size only when it is about to be shown, and works it out once more then.
void fit(QMessageBox *box)
{
    constexpr int minHeight = 64;
    QEvent layOut(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(box, &layOut);
    box->layout()->activate();
    auto *text = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    const int lacking = box->height() - room().height();
    if (text && lacking > 0 && !qobject_cast<QScrollArea *>(text->parentWidget()->parentWidget()))
        putIntoScrollArea(text, box, std::max(text->height() - lacking, minHeight));
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
    if (box && event->type() == QEvent::Show)
        fit(box);
    return false;
}

} // namespace Quillmont::Utility::Widgets
