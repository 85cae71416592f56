#include "tests/support/Display.h"

#include <QProcessEnvironment>
#include <QStandardPaths>

namespace Tests {

Display::Display(int dotsPerInch)
{
    const QString server = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
    if (server.isEmpty() || QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty())
        return;
    // The server chooses a free number, and prints it as soon as it is listening.
    m_server.start(server,
                   {QStringLiteral("-displayfd"),
                    QStringLiteral("1"),
                    QStringLiteral("-screen"),
                    QStringLiteral("0"),
                    QStringLiteral("1280x1024x24"),
                    QStringLiteral("-dpi"),
                    QString::number(dotsPerInch),
                    QStringLiteral("-nolisten"),
                    QStringLiteral("tcp")});
    while (!m_server.canReadLine()) {
        if (!m_server.waitForReadyRead(20000))
            return;
    }
    m_name = u':' + QString::fromLatin1(m_server.readLine().trimmed());
}

Display::~Display()
{
    m_server.terminate();
    if (m_server.state() != QProcess::NotRunning && !m_server.waitForFinished(5000)) {
        m_server.kill();
        m_server.waitForFinished();
    }
}

bool Display::click(QPoint at) const
{
    QProcess mouse;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_name);
    mouse.setProcessEnvironment(environment);
    mouse.start(QStringLiteral("xdotool"),
                {QStringLiteral("mousemove"),
                 QString::number(at.x()),
                 QString::number(at.y()),
                 QStringLiteral("click"),
                 QStringLiteral("1")});
    return mouse.waitForFinished() && mouse.exitCode() == 0;
}

} // namespace Tests
