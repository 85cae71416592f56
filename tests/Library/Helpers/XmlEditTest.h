#ifndef TESTS_LIBRARY_HELPERS_XMLEDITTEST_H
#define TESTS_LIBRARY_HELPERS_XMLEDITTEST_H

#include "tests/support/Sandbox.h"

#include <QByteArray>
#include <QObject>
#include <QString>

namespace Tests {

/// The entry that most tests write: an element "Addon" with the children "Name" and "Path".
extern const char *const addon;

/// A test that edits one file, "exe.xml" in a folder of its own.
class XmlEditTest : public QObject
{
    Q_OBJECT

protected:
    QString path() const { return m_sandbox.path(QStringLiteral("exe.xml")); }

    /// Makes @p bytes the file's content, and lets @p config's entry into it.
    bool insertInto(const QByteArray &bytes, const QByteArray &config = addon);
    /// Makes @p bytes the file's content, and takes @p config's entry out of it.
    bool removeFrom(const QByteArray &bytes, const QByteArray &config = addon);
    /// Lets @p config's entry into the file as it stands.
    bool insert(const QByteArray &config = addon);
    /// Takes @p config's entry out of the file as it stands.
    bool remove(const QByteArray &config = addon);
    /// Likewise for the file at @p path.
    static bool insertAt(const QString &path, const QByteArray &config = addon);
    /// Likewise for the file at @p path.
    static bool removeAt(const QString &path, const QByteArray &config = addon);

    /// The file's bytes.
    QByteArray content() const;
    /// Changes whenever the file is written, with the same bytes too.
    QByteArray identity() const;

    Sandbox m_sandbox;
};

} // namespace Tests

#endif
