#ifndef TESTS_SUPPORT_SANDBOX_H
#define TESTS_SUPPORT_SANDBOX_H

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

namespace Tests {

/// A home of a test's own. While it lives, every per-user place of this process and of those
/// that it starts lies inside it; afterwards the environment is as it was and the folder gone.
class Sandbox
{
public:
    Sandbox();
    ~Sandbox();
    Sandbox(const Sandbox &) = delete;
    Sandbox &operator=(const Sandbox &) = delete;

    /// The folder that holds everything, absolute, without a slash at its end.
    QString root() const;
    /// The home folder, inside root().
    QString home() const;
    /// The per-user application-data root, with a slash at its end.
    QString dataRoot() const;
    /// @p relative as a path inside root().
    QString path(const QString &relative) const;

    /// Sets an environment variable until the sandbox ends.
    void setVariable(const char *name, const QByteArray &value);

private:
    struct Variable
    {
        QByteArray name;
        QByteArray value;
        bool wasSet;
    };

    void keep(const char *name);

    QTemporaryDir m_directory;
    QVector<Variable> m_before;
};

} // namespace Tests

#endif
