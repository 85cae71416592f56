#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Library/Files/FileWriter.h"
#include "Library/Helpers/FileHelper.h"
#include "ViewControllers/Payload/SimulatorFiles.h"

#include <QDir>
#include <QFile>
#include <QTextCodec>
#include <QTextStream>

using Quillmont::Library::Files::FileWriter;
using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;

namespace Quillmont::Utility::ViewControllers {

namespace {

// Hundreds of thousands of records have less; what is bigger only eats up memory.
constexpr qint64 maxSize = 96LL * 1024 * 1024;

bool open(QFile *file, QIODevice::OpenMode mode, QString *problem)
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

// What readFile() refuses is not written either: no later run could read it, or mend it.
bool write(QFile *file, const QByteArray &bytes, QString *problem)
{
    if (bytes.size() <= maxSize)
        return open(file, QIODevice::ReadWrite, problem)
            && FileWriter::rewrite(file, bytes, problem);
    *problem = QStringLiteral("too big");
    return false;
}

} // namespace

QString ScanController::readFile(const QString &path)
{
    QString text;
    readText(path, &text);
    return text;
}

bool ScanController::readText(const QString &path, QString *text)
{
    const QString native = QDir::toNativeSeparators(path);
    QFile file(native);
    QString problem;
    if (open(&file, QIODevice::ReadOnly, &problem))
        *text = wholeText(&file, &problem);
    if (problem.isEmpty())
        return true;

    text->clear();
    logAction() << "not read:" << native << problem;
    // Says "empty" of a file that could not be opened: what support has been told to look for.
    m_errorMessage += tr("The file '%0' is empty. Quillmont Orbwell installer was not able to "
                         "change your configuration.")
                          .arg(native);
    return false;
}

void ScanController::saveFile(const QString &path, const QString &content)
{
    const QString native = QDir::toNativeSeparators(path);
    makeFolderOf(native);

    QFile file(native);
    QString problem;
    // As a text stream encodes it.
    if (write(&file, QTextCodec::codecForLocale()->fromUnicode(content), &problem))
        logAction() << "written:" << native;
    else
        reportUnwritten(native, problem);
}

void ScanController::reportUnwritten(const QString &path, const QString &problem)
{
    logAction() << "not written:" << path << problem;
    m_errorMessage += tr("Unable to write configuration to file '%0'. Please check if you have "
                         "permission to that file.")
                          .arg(path);
}

void ScanController::createRestrictedProcess(const QString &) { }

} // namespace Quillmont::Utility::ViewControllers
