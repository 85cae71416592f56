#include "ViewControllers/Payload/TextFile.h"

#include "Controllers/PathEncoding.h"
#include "Library/Files/FileWriter.h"
#include "Library/Helpers/FileHelper.h"

#include <QFile>
#include <QTextCodec>

using Quillmont::Library::Files::FileWriter;
using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::PathEncoding;

namespace Quillmont::Utility::ViewControllers {

namespace {

// Larger than hundreds of thousands of records; larger files are refused to save memory.
constexpr qint64 maxSize = 96LL * 1024 * 1024;

bool hasValidName(const QString &path, QString *problem)
{
    if (PathEncoding::survives(path))
        return true;
    *problem = QStringLiteral("its name is not valid text");
    return false;
}

} // namespace

QByteArray contentOf(const QString &path, QString *problem)
{
    return hasValidName(path, problem) ? FileHelper::read(path, maxSize, problem) : QByteArray();
}

QString textOf(const QByteArray &bytes)
{
    // With a state, an incomplete character at the end is dropped, as QTextStream does it.
    QTextCodec::ConverterState state;
    const auto *codec = QTextCodec::codecForUtfText(bytes, QTextCodec::codecForLocale());
    return codec->toUnicode(bytes.constData(), bytes.size(), &state);
}

bool rewriteText(QFile *file, const QByteArray &bytes, QString *problem)
{
    if (bytes.size() <= maxSize)
        return hasValidName(file->fileName(), problem)
            && FileHelper::open(file, QIODevice::ReadWrite, problem)
            && FileWriter::rewrite(file, bytes, problem);
    *problem = QStringLiteral("too big");
    return false;
}

} // namespace Quillmont::Utility::ViewControllers
