#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "ViewControllers/Payload/SimulatorFiles.h"
#include "ViewControllers/Payload/TextFile.h"

#include <QDir>
#include <QFile>
#include <QTextCodec>

using Quillmont::Utility::Controllers::logAction;

namespace Quillmont::Utility::ViewControllers {

QString ScanController::readFile(const QString &path)
{
    QByteArray bytes;
    readContent(path, &bytes);
    return textOf(bytes);
}

bool ScanController::readContent(const QString &path, QByteArray *bytes)
{
    const QString native = QDir::toNativeSeparators(path);
    QString problem;
    *bytes = contentOf(native, &problem);
    if (problem.isEmpty())
        return true;

    logAction() << "not read:" << native << problem;
    // The message says "empty" even if the file could not be opened: support looks for that word.
    m_errorMessage += tr("The file '%0' is empty. Quillmont Orbwell installer was not able to "
                         "change your configuration.")
                          .arg(native);
    return false;
}

void ScanController::saveFile(const QString &path, const QString &content)
{
    // As a text stream encodes it.
    saveContent(path, QTextCodec::codecForLocale()->fromUnicode(content));
}

void ScanController::saveContent(const QString &path, const QByteArray &bytes)
{
    const QString native = QDir::toNativeSeparators(path);
    makeFolderOf(native);

    QFile file(native);
    QString problem;
    if (rewriteText(&file, bytes, &problem))
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
