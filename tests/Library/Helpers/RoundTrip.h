#ifndef TESTS_LIBRARY_HELPERS_ROUNDTRIP_H
#define TESTS_LIBRARY_HELPERS_ROUNDTRIP_H

#include <QByteArray>
#include <QString>

namespace Tests {

/// Adds an entry to one file and removes it again, and checks the bytes after each step.
class RoundTrip
{
public:
    /// Works on the file at @p path, whose content it overwrites.
    explicit RoundTrip(const QString &path);

    /// The promise that is broken for a file with @p bytes; empty if none is.
    QString broken(const QByteArray &bytes);

    /// Whether the last file was edited; false if it was refused.
    bool wasAccepted() const { return m_wasAccepted; }

private:
    QString brokenByEdit(const QByteArray &bytes);
    QString brokenByRemoval(const QByteArray &bytes, const QByteArray &edited);

    QString m_path;
    bool m_wasAccepted = false;
};

} // namespace Tests

#endif
