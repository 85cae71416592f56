#ifndef TESTS_SUPPORT_SEEN_H
#define TESTS_SUPPORT_SEEN_H

#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

class QJsonObject;

namespace Tests {

/// A button as a user sees it.
struct SeenControl
{
    SeenControl() = default;
    explicit SeenControl(const QJsonObject &seen);

    QString text;
    bool enabled = false;
    /// On the screen.
    QRect rectangle;
};

/// A row of the list of simulators.
struct SeenRow
{
    SeenRow() = default;
    explicit SeenRow(const QJsonObject &seen);

    QString name;
    QString path;
    QString placeholder;
    QString toolTip;
    /// "check-green", "check-grey" or "minus-grey".
    QString icon;
    SeenControl browse;
    SeenControl action;
    QRect rectangle;
};

/// A window or a box.
struct SeenWindow
{
    SeenWindow() = default;
    explicit SeenWindow(const QJsonObject &seen);

    /// The texts of its buttons.
    QStringList buttonTexts() const;

    /// The number of the window, in the order in which the process showed them, from 1; 0 for none.
    int number = 0;
    QString className;
    QString title;
    QString text;
    /// Of a box: the name of its QMessageBox::Icon.
    QString icon;
    /// Of a box: its parent's class, empty without a parent.
    QString parent;
    QVector<SeenControl> buttons;
    QRect rectangle;
};

} // namespace Tests

#endif
