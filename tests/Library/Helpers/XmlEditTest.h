#ifndef TESTS_LIBRARY_HELPERS_XMLEDITTEST_H
#define TESTS_LIBRARY_HELPERS_XMLEDITTEST_H

#include "tests/support/Sandbox.h"

#include <QByteArray>
#include <QObject>
#include <QString>

namespace Tests {

/// The entry that most tests write: an element "Addon" with the children "Name" and "Path".
extern const char *const addon;

/// A test that edits one file, "exe.xml" in its own folder.
class XmlEditTest : public QObject
{
    Q_OBJECT

protected:
    QString path() const { return m_sandbox.path(QStringLiteral("exe.xml")); }

    /// Makes @p bytes the file's content, and inserts @p config's entry.
    bool insertInto(const QByteArray &bytes, const QByteArray &config = addon);
    /// Makes @p bytes the file's content, and removes @p config's entry.
    bool removeFrom(const QByteArray &bytes, const QByteArray &config = addon);
    /// Inserts @p config's entry into the current file.
    bool insert(const QByteArray &config = addon);
    /// Removes @p config's entry from the current file.
    bool remove(const QByteArray &config = addon);
    /// Likewise for the file at @p path.
    static bool insertAt(const QString &path, const QByteArray &config = addon);
    /// Likewise for the file at @p path.
    static bool removeAt(const QString &path, const QByteArray &config = addon);

    /// The file's bytes.
    QByteArray content() const;
    /// A value that changes whenever the file is written, even with the same bytes.
    QByteArray identity() const;

    Sandbox m_sandbox;
};

} // namespace Tests

#endif
