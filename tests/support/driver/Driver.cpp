#include "tests/support/driver/Driver.h"

#include "tests/support/driver/Channel.h"
#include "tests/support/driver/Eye.h"
#include "tests/support/driver/Hand.h"

#include <QApplication>
#include <QJsonDocument>
#include <QSocketNotifier>

#include <array>
#include <cstdlib>

#include <unistd.h>

namespace Tests {

static void answer(const QJsonObject &object)
{
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    if (::write(driverOutput, line.constData(), static_cast<size_t>(line.size())) != line.size())
        std::_Exit(3);
}

Driver::Driver(QObject *parent)
    : QObject(parent)
    , m_notifier(new QSocketNotifier(driverInput, QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, [this] { readCommands(); });
}

void Driver::readCommands()
{
    std::array<char, 4096> buffer{};
    const ssize_t count = ::read(driverInput, buffer.data(), buffer.size());
    if (count <= 0)
        std::_Exit(3);
    m_input.append(buffer.data(), static_cast<int>(count));
    for (int end = m_input.indexOf('\n'); end >= 0; end = m_input.indexOf('\n')) {
        const QJsonObject command = QJsonDocument::fromJson(m_input.left(end)).object();
        m_input.remove(0, end + 1);
        // Queued: a click may start long work, and commands must be handled meanwhile.
        QMetaObject::invokeMethod(
            this, [this, command] { obey(command); }, Qt::QueuedConnection);
    }
}

void Driver::obey(const QJsonObject &command)
{
    const QString ask = command.value(QLatin1String("ask")).toString();
    if (!ask.isEmpty()) {
        answer(look(ask));
        return;
    }
    Hand hand(command);
    // Answered before the action, since a click that opens a box returns only when it is closed.
    answer({{QStringLiteral("error"), hand.reach()}});
    hand.act();
}

QJsonObject Driver::look(const QString &at)
{
    if (at == QLatin1String("windows"))
        return {{at, Eye::windows()}};
    if (at == QLatin1String("rows"))
        return {{at, Eye::rows()}};
    if (at == QLatin1String("pointer"))
        return {{QStringLiteral("busy"), QApplication::overrideCursor() != nullptr}};
    return {{QStringLiteral("error"), QLatin1String("nothing to see: ") + at}};
}

} // namespace Tests
