#ifndef TESTS_SUPPORT_DRIVER_HAND_H
#define TESTS_SUPPORT_DRIVER_HAND_H

#include <QJsonObject>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace Tests {

/// Does one thing that a person does: presses a button, chooses a folder, presses a key.
class Hand
{
public:
    explicit Hand(const QJsonObject &command);

    /// Finds what the command is about; empty, or why it cannot be done.
    QString reach();
    /// Does it, if it was within reach. May return only after a box was answered.
    void act();

private:
    QString text(const char *key) const;
    QString reachRow();
    QString reachButton();
    QString reachFolderDialog();

    const QJsonObject m_command;
    const QString m_deed;
    QPointer<QWidget> m_target;
};

} // namespace Tests

#endif
