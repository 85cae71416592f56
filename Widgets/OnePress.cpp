#include "Widgets/OnePress.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace Quillmont::Utility::Widgets {

namespace {

bool pressesButtons(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Select:
        return true;
    default:
        return false;
    }
}

} // namespace

void OnePress::watch()
{
    static QPointer<OnePress> watching;
    if (watching)
        return;
    watching = new OnePress(qApp);
    qApp->installEventFilter(watching);
}

// A widget that has no use for an event hands it to its parent, and it comes by here once more:
// the answer must be the same.
bool OnePress::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWidgetType())
        return false;
    auto *receiver = static_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return keepsKeyFrom(receiver, static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
        m_clickWindow = receiver->window();
        m_hasClicked = true;
        return false;
    case QEvent::MouseButtonDblClick: // in place of a second press
        return m_hasClicked && m_clickWindow != receiver->window()
            && receiver->window()->windowType() != Qt::Popup;
    default:
        return false;
    }
}

bool OnePress::keepsKeyFrom(QWidget *receiver, const QKeyEvent *event)
{
    if (!pressesButtons(event))
        return false;
    if (event->type() == QEvent::KeyRelease) {
        m_key = event->key();
        m_keyReleased = event->timestamp();
        m_keyButton = nullptr;
        return false;
    }
    if (isRepeat(event, receiver))
        return receiver->window() != m_keyWindow || qobject_cast<QAbstractButton *>(receiver);
    keepPress(event, receiver);
    return false;
}

bool OnePress::isRepeat(const QKeyEvent *press, const QWidget *receiver) const
{
    // No finger is that quick; an X server gives both ends of a repeat one time.
    constexpr ulong nextPress = 3;
    if (press->isAutoRepeat())
        return true;
    if (press->key() != m_key)
        return false;
    // Without a time it was made up in this process, and its release does not get lost.
    return press->timestamp() == 0 ? m_keyButton && m_keyButton.data() == receiver
                                   : press->timestamp() - m_keyReleased < nextPress;
}

void OnePress::keepPress(const QKeyEvent *press, QWidget *receiver)
{
    m_key = press->key();
    m_keyReleased = 0;
    m_keyWindow = receiver->window();
    if (auto *button = qobject_cast<QAbstractButton *>(receiver))
        m_keyButton = button;
}

} // namespace Quillmont::Utility::Widgets
