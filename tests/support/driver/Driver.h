#ifndef TESTS_SUPPORT_DRIVER_DRIVER_H
#define TESTS_SUPPORT_DRIVER_DRIVER_H

#include <QByteArray>
#include <QJsonObject>
#include <QObject>

class QSocketNotifier;

namespace Tests {

/// Reads one JSON object per line from driverInput and answers each with one on driverOutput, even
/// while a box of the program runs its own event loop. Ends the process when the test is gone.
class Driver : public QObject
{
    Q_OBJECT

public:
    explicit Driver(QObject *parent);

private:
    void readCommands();
    void obey(const QJsonObject &command);
    static QJsonObject look(const QString &at);

    QSocketNotifier *m_notifier;
    QByteArray m_input;
};

} // namespace Tests

#endif
