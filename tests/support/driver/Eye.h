#ifndef TESTS_SUPPORT_DRIVER_EYE_H
#define TESTS_SUPPORT_DRIVER_EYE_H

#include <QJsonArray>

class QAbstractButton;
class QString;
class QWidget;

namespace Tests::Eye {

/// The visible windows, the active one first: class, title, text, icon, buttons, parent's class,
/// geometry.
QJsonArray windows();

/// The rows of the list of simulators, from the top: name, path field, icon, controls.
QJsonArray rows();

/// The row's widget for the simulator of that name, or null.
QWidget *rowOf(const QString &simulator);

/// The row's button that reads "...", or the other one.
QAbstractButton *buttonOf(const QWidget *row, bool browse);

/// The window that takes input now, or null.
QWidget *inputWindow();

/// A button's text as it is shown, without the mark of its shortcut.
QString shownText(const QAbstractButton *button);

} // namespace Tests::Eye

#endif
