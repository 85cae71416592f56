#include "tests/support/Sandbox.h"

#include <QDir>

#include <filesystem>

namespace Tests {

// The folder's name must not contain a test program's name: a program removes every occurrence of
// its own name from the per-user paths.
Sandbox::Sandbox()
    : m_directory(QDir::tempPath() + QLatin1String("/sandbox-XXXXXX"))
{
    if (!m_directory.isValid())
        qFatal("no temporary folder: %s", qPrintable(m_directory.errorString()));
    QDir().mkpath(home());
    setVariable("HOME", QFile::encodeName(home()));
    for (const char *name :
         {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "FG_ROOT"}) {
        keep(name);
        qunsetenv(name);
    }
}

Sandbox::~Sandbox()
{
    // Qt does not see files whose names cannot be decoded.
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(root()).toStdString(), ignored);
    for (auto it = m_before.crbegin(); it != m_before.crend(); ++it) {
        if (it->wasSet)
            qputenv(it->name.constData(), it->value);
        else
            qunsetenv(it->name.constData());
    }
}

QString Sandbox::root() const
{
    return m_directory.path();
}

QString Sandbox::home() const
{
    return path(QStringLiteral("home"));
}

QString Sandbox::dataRoot() const
{
#ifdef Q_OS_MACOS
    return home() + QLatin1String("/Library/Application Support/");
#else
    return home() + QLatin1String("/.local/share/");
#endif
}

QString Sandbox::path(const QString &relative) const
{
    return root() + u'/' + relative;
}

void Sandbox::setVariable(const char *name, const QByteArray &value)
{
    keep(name);
    qputenv(name, value);
}

void Sandbox::keep(const char *name)
{
    m_before.append({name, qgetenv(name), qEnvironmentVariableIsSet(name)});
}

} // namespace Tests
