#ifndef TESTS_SUPPORT_FILES_H
#define TESTS_SUPPORT_FILES_H

#include <QByteArray>
#include <QMap>
#include <QString>

namespace Tests {

/// Writes @p content to @p path, creating missing folders; a failure ends the test program.
void writeFile(const QString &path, const QByteArray &content);

/// The whole content of the file at @p path; a failure ends the test program.
QByteArray readFile(const QString &path);

/// Everything below @p folder: relative path to content. A folder's path ends in "/" and its
/// content is empty; a symbolic link's content is "-> " and its target, and it is not followed.
QMap<QString, QByteArray> treeOf(const QString &folder);

} // namespace Tests

#endif
