#ifndef TESTS_SUPPORT_SANDBOX_H
#define TESTS_SUPPORT_SANDBOX_H

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

namespace Tests {

/// A test's own home. During its lifetime, every per-user folder of this process and its children
/// is inside it; afterwards the environment is restored and the folder deleted.
class Sandbox
{
public:
    Sandbox();
    ~Sandbox();
    Sandbox(const Sandbox &) = delete;
    Sandbox &operator=(const Sandbox &) = delete;

    /// The sandbox's folder, absolute, without a trailing slash.
    QString root() const;
    /// The home folder, inside root().
    QString home() const;
    /// The per-user application-data root, with a trailing slash.
    QString dataRoot() const;
    /// @p relative as a path inside root().
    QString path(const QString &relative) const;

    /// Sets an environment variable for the sandbox's lifetime.
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
