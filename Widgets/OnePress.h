#ifndef WIDGETS_ONEPRESS_H
#define WIDGETS_ONEPRESS_H

#include <QObject>
#include <QPointer>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace Quillmont::Utility::Widgets {

/// Makes one press one action, in all windows of the process.
///
/// While Return, Enter or the space bar is held down, its repeats press no button, and do nothing
/// in a window that came up meanwhile. Qt marks only those repeats of which both ends have arrived
/// when it looks; on X11 it hands out the others as a key that was let go and pressed again.
///
/// The second click of a double click does nothing in another window than the first: there it
/// would answer a box that came up under the pointer, or press what a closed one had covered.
class OnePress : public QObject
{
    Q_OBJECT

public:
    /// Sees to it from now on. A second call does nothing.
    static void watch();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;

    bool keepsKeyFrom(QWidget *receiver, const QKeyEvent *event);
    bool isRepeat(const QKeyEvent *press, const QWidget *receiver) const;
    void keepPress(const QKeyEvent *press, QWidget *receiver);

    int m_key = 0;
    ulong m_keyReleased = 0; ///< In the window system's milliseconds; 0 when it does not say.
    QPointer<QWidget> m_keyWindow; ///< Where it was pressed.
    QPointer<QAbstractButton> m_keyButton; ///< What it pressed, until it is let go.
    QPointer<QWidget> m_clickWindow; ///< That of the last single click.
    bool m_hasClicked = false;
};

} // namespace Quillmont::Utility::Widgets

#endif
