#include "ViewControllers/Payload/TextFile.h"

#include "Controllers/PathEncoding.h"
#include "Library/Files/FileWriter.h"
#include "Library/Helpers/FileHelper.h"

#include <QFile>
#include <QTextStream>

using Quillmont::Library::Files::FileWriter;
using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::PathEncoding;

namespace Quillmont::Utility::ViewControllers {

namespace {

// Larger than hundreds of thousands of records; larger files are refused to save memory.
constexpr qint64 maxSize = 96LL * 1024 * 1024;

} // namespace

bool openText(QFile *file, QIODevice::OpenMode mode, QString *problem)
{
    if (PathEncoding::survives(file->fileName()))
        return FileHelper::open(file, mode, problem);
    *problem = QStringLiteral("its name is not valid text");
    return false;
}

QString wholeText(QFile *file, QString *problem)
{
    if (file->size() > maxSize) {
        *problem = QStringLiteral("too big");
        return {};
    }
    QString text = QTextStream(file).readAll();
    if (file->error() != QFileDevice::NoError)
        *problem = file->errorString();
    return text;
}

bool rewriteText(QFile *file, const QByteArray &bytes, QString *problem)
{
    if (bytes.size() <= maxSize)
        return openText(file, QIODevice::ReadWrite, problem)
            && FileWriter::rewrite(file, bytes, problem);
    *problem = QStringLiteral("too big");
    return false;
}

} // namespace Quillmont::Utility::ViewControllers
