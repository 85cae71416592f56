#include "tests/support/Files.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace Tests {

void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s: %s", qPrintable(path), qPrintable(file.errorString()));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s: %s", qPrintable(path), qPrintable(file.errorString()));
    return file.readAll();
}

QMap<QString, QByteArray> treeOf(const QString &folder)
{
    QMap<QString, QByteArray> tree;
    QDirIterator it(folder,
                    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo info(it.next());
        const QString relative = QDir(folder).relativeFilePath(info.filePath());
        if (info.isSymLink())
            tree.insert(relative, "-> " + QFile::encodeName(info.symLinkTarget()));
        else if (info.isDir())
            tree.insert(relative + u'/', {});
        else
            tree.insert(relative, info.isFile() ? readFile(info.filePath()) : QByteArray());
    }
    return tree;
}

} // namespace Tests
