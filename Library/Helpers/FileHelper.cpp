#include "Library/Helpers/FileHelper.h"

#include "Library/Helpers/FileWriter.h"
#include "Library/Helpers/LibraryLog.h"

#include <QDir>
#include <QFileInfo>
#include <QTextCodec>

#include <filesystem>
#include <string>
#include <system_error>

namespace Quillmont::Library::Helpers {

namespace {

QString write(const QString &path, const QString &text, const QString &encoding)
{
    auto *codec = QTextCodec::codecForName(encoding.isEmpty() ? "UTF-8" : encoding.toLatin1());
    if (!codec)
        return QStringLiteral("unknown encoding \"%1\"").arg(encoding);
    if (!codec->canEncode(text))
        return QStringLiteral("the encoding \"%1\" lacks a character of the text").arg(encoding);
    if (path.isEmpty() || !QDir().mkpath(QFileInfo(path).absolutePath()))
        return QStringLiteral("its folder cannot be made");

    QString problem;
    FileWriter::write(path, codec->fromUnicode(text), &problem);
    return problem;
}

} // namespace

bool FileHelper::saveText(const QString &path, const QString &text, const QString &encoding)
{
    const QString problem = write(path, text, encoding);
    if (!problem.isEmpty())
        qCDebug(fileLog).noquote().nospace() << "file not written: " << path << ": " << problem;
    return problem.isEmpty();
}

bool FileHelper::isMissing(const QString &path)
{
    std::error_code ignored;
    const std::string name = QFile::encodeName(path).toStdString();
    return std::filesystem::status(name, ignored).type() == std::filesystem::file_type::not_found;
}

bool FileHelper::isOrdinary(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile()
        && (file.size() > 0 || !file.open(QIODevice::ReadOnly) || file.peek(1).isEmpty());
}

} // namespace Quillmont::Library::Helpers
