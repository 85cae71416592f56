#ifndef WIDGETS_ONEPRESS_H
#define WIDGETS_ONEPRESS_H

#include <QObject>
#include <QPointer>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace Quillmont::Utility::Widgets {

/// Makes each press one action only, in all windows of the process.
///
/// While Return, Enter or the space bar is held down, its repeats press no button, and do nothing
/// in a window that has opened meanwhile. On X11, Qt marks a repeat as such only if both its
/// release and its press have arrived; otherwise it reports a key that was released and pressed
/// again.
///
/// The second click of a double click does nothing in a different window from the first: it would
/// answer a box that has opened under the pointer, or press what a closed box had covered.
class OnePress : public QObject
{
    Q_OBJECT

public:
    /// Installs the filter. A second call does nothing.
    static void watch();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;

    bool blocksKey(QWidget *receiver, const QKeyEvent *event);
    bool isRepeat(const QKeyEvent *press, const QWidget *receiver) const;
    void keepPress(const QKeyEvent *press, QWidget *receiver);

    int m_key = 0;
    ulong m_keyReleased = 0; ///< In the window system's milliseconds; 0 if unknown.
    QPointer<QWidget> m_keyWindow; ///< Where it was pressed.
    QPointer<QAbstractButton> m_keyButton; ///< What it pressed, until it is released.
    QPointer<QWidget> m_clickWindow; ///< The window of the last single click.
    bool m_hasClicked = false;
};

} // namespace Quillmont::Utility::Widgets

#endif
