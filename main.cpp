#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Controllers/Translations.h"
#include "Library/Files/FileSizeSignal.h"
#include "ViewControllers/ScanController.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTextCodec>
#include <QtGlobal>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

using Quillmont::Library::Files::FileSizeSignal;
using Quillmont::Utility::Controllers::installTranslations;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;
using Quillmont::Utility::ViewControllers::ScanController;

namespace {

// Whoever opens a file gets the lowest number that is free. Were it that of standard error, each
// line of the log would go into the installation record, or to the X server.
void tieClosedDescriptors()
{
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(standard, F_GETFD) == -1)
            ::open("/dev/null", O_RDWR);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    // Before anything else, since everything else may open a file.
    tieClosedDescriptors();

    // Catalogue, record and paths are UTF-8, whatever locale a launcher or a script hands us.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

    // Qt would take a relative one for a place below the working directory, and would keep what
    // its folder dialog remembers in the garbled one.
    PathEncoding::ignoreRelativeFolders();
    if (!PathEncoding::survives(
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)))
        QSettings::setPath(
            QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));

    // Who reads the log may stop reading; the work goes on.
    std::signal(SIGPIPE, SIG_IGN);

    // A plugin file that is over the limit is told of like any other that cannot be copied.
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
