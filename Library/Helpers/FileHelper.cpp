#include "Library/Helpers/FileHelper.h"

#include "Library/Files/FileWriter.h"
#include "Library/Files/LibraryLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <system_error>

using Quillmont::Library::Files::fileLog;
using Quillmont::Library::Files::FileWriter;

namespace Quillmont::Library::Helpers {

namespace {

QString write(const QString &path, const QString &text, const QString &encoding)
{
    auto *codec = QTextCodec::codecForName(encoding.isEmpty() ? "UTF-8" : encoding.toLatin1());
    if (!codec)
        return QStringLiteral("unknown encoding \"%1\"").arg(encoding);
    if (!codec->canEncode(text))
        return QStringLiteral("the encoding \"%1\" lacks a character of the text").arg(encoding);
    if (path.isEmpty() || !FileHelper::makeFolderOf(path))
        return QStringLiteral("its folder cannot be made");

    QString problem;
    FileWriter::write(path, codec->fromUnicode(text), &problem);
    return problem;
}

bool isRegular(int handle)
{
    struct stat status = {};
    return fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
}

// Some files in /proc have no size and never end. The size is read twice, since another process may
// be writing the first bytes at this moment.
bool hasAnEnd(QFile *file)
{
    return file->size() > 0 || file->peek(1).isEmpty() || file->size() > 0;
}

} // namespace

bool FileHelper::saveText(const QString &path, const QString &text, const QString &encoding)
{
    const QString problem = write(path, text, encoding);
    if (!problem.isEmpty())
        qCDebug(fileLog, "file not written: %s: %s", qUtf8Printable(path), qUtf8Printable(problem));
    return problem.isEmpty();
}

bool FileHelper::makeFolderOf(const QString &path)
{
    // Not the absolute path: Qt removes ".." from it, which changes its meaning after a linked
    // folder.
    return QDir().mkpath(QFileInfo(path).path());
}

bool FileHelper::isMissing(const QString &path)
{
    std::error_code ignored;
    const std::string name = QFile::encodeName(path).toStdString();
    return std::filesystem::status(name, ignored).type() == std::filesystem::file_type::not_found;
}

bool FileHelper::open(QFile *file, QIODevice::OpenMode mode, QString *problem)
{
    const QFileInfo info(file->fileName());
    const bool existsButIsNotRegular = info.exists() && !info.isFile();
    if (!existsButIsNotRegular && file->open(mode) && isRegular(file->handle()) && hasAnEnd(file))
        return true;
    *problem = existsButIsNotRegular || file->isOpen() ? QStringLiteral("not a regular file")
                                                       : file->errorString();
    file->close();
    return false;
}

QByteArray FileHelper::read(const QString &path, qint64 maxSize, QString *problem)
{
    QFile file(path);
    if (!open(&file, QIODevice::ReadOnly, problem))
        return {};
    if (file.size() > maxSize) {
        *problem = QStringLiteral("too big");
        return {};
    }
    QByteArray bytes;
    // Where the disk fails after the first bytes, Qt reports it only to the next call.
    for (QByteArray part = file.readAll(); !part.isEmpty(); part = file.readAll())
        bytes += part;
    if (file.error() == QFileDevice::NoError)
        return bytes;
    *problem = file.errorString();
    return {};
}

} // namespace Quillmont::Library::Helpers
