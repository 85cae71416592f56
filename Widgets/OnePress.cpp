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

// An ignored event is passed on to the parent and filtered once more: the result must be the same.
bool OnePress::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWidgetType())
        return false;
    auto *receiver = static_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return blocksKey(receiver, static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
        m_clickWindow = receiver->window();
        m_hasClicked = true;
        return false;
    case QEvent::MouseButtonDblClick: // instead of a second press
        return m_hasClicked && m_clickWindow != receiver->window()
            && receiver->window()->windowType() != Qt::Popup;
    default:
        return false;
    }
}

bool OnePress::blocksKey(QWidget *receiver, const QKeyEvent *event)
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
    // Milliseconds; an X server gives a repeat's release and press the same time.
    constexpr ulong nextPress = 3;
    if (press->isAutoRepeat())
        return true;
    if (press->key() != m_key)
        return false;
    // Events without a time come from this process, and their releases are never lost.
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
