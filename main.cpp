#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Controllers/StandardDescriptors.h"
#include "Controllers/Translations.h"
#include "Library/Files/FileSizeSignal.h"
#include "ViewControllers/ScanController.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTextCodec>
#include <QtGlobal>

#include <csignal>

using Quillmont::Library::Files::FileSizeSignal;
using Quillmont::Utility::Controllers::installTranslations;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;
using Quillmont::Utility::Controllers::tieClosedDescriptors;
using Quillmont::Utility::ViewControllers::ScanController;

int main(int argc, char *argv[])
{
    // First of all, since everything else may open a file.
    tieClosedDescriptors();

    // Catalogue, record and paths are UTF-8, whatever the locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

    // Qt would resolve a relative folder against the working directory, and would store its file
    // dialog's history in a folder with a garbled name.
    PathEncoding::ignoreRelativeFolders();
    if (!PathEncoding::survives(
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)))
        QSettings::setPath(
            QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));

    // Losing the reader of the log must not kill an installation.
    std::signal(SIGPIPE, SIG_IGN);

    // A plugin file over the size limit is then reported like any other failed copy.
    const FileSizeSignal ignored;

    // A window of labels and buttons needs no OpenGL; loading it would take most of the start.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    const QApplication application(argc, argv);
    installTranslations();

    ScanController controller(nullptr, nullptr);
    controller.startScan(true, false, ScanController::ModeNone);

    const int status = QApplication::exec();
    logAction() << "end with status" << status;
    return status;
}
