#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Library/Helpers/FileHelper.h"
#include "ViewControllers/SimulatorFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;

namespace Quillmont::Utility::ViewControllers {

namespace {

// Hundreds of thousands of records have less; what is bigger only eats up memory.
constexpr qint64 biggestSize = 96LL * 1024 * 1024;

// Opening a pipe that stands in a file's place would wait for its other end for ever.
bool isSomethingElse(const QString &path)
{
    const QFileInfo info(path);
    return !PathEncoding::survives(path) || (info.exists() && !FileHelper::isOrdinary(path));
}

// Handed over in one, the stream would first copy the whole text and then all its bytes.
bool writeInPieces(const QString &content, QFile *file)
{
    constexpr int size = 16 * 1024;
    QTextStream stream(file);
    for (int begin = 0; begin < content.size(); begin += size)
        stream << content.midRef(begin, size);
    stream.flush();
    return file->flush() && file->error() == QFileDevice::NoError;
}

} // namespace

QString ScanController::readFile(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    QFile file(native);
    if (!isSomethingElse(native) && file.size() <= biggestSize && file.open(QIODevice::ReadOnly))
        return QTextStream(&file).readAll();

    // Says "empty" of a file that could not be opened: what support has been told to look for.
    m_errorMessage += tr("The file '%0' is empty. Quillmont Orbwell installer was not able to "
                         "change your configuration.")
                          .arg(native);
    return {};
}

void ScanController::saveFile(const QString &path, const QString &content)
{
    const QString native = QDir::toNativeSeparators(path);
    makeFolderOf(native);

    QFile file(native);
    if (!isSomethingElse(native) && file.open(QIODevice::ReadWrite | QIODevice::Truncate)) {
        if (writeInPieces(content, &file))
            logAction() << "written:" << native;
        else
            logAction() << "not wholly written:" << native << file.errorString();
        return;
    }
    logAction() << "not written:" << native << file.errorString();
    m_errorMessage += tr("Unable to write configuration to file '%0'. Please check if you have "
                         "permission to that file.")
                          .arg(native);
}

void ScanController::createRestrictedProcess(const QString &) { }

} // namespace Quillmont::Utility::ViewControllers
