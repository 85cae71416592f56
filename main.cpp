#include "ViewControllers/ScanController.h"

#include <QApplication>
#include <QTextCodec>

using Quillmont::Utility::ViewControllers::ScanController;

int main(int argc, char *argv[])
{
    // Catalogue, record and paths are UTF-8, whatever locale a launcher or a script hands us.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    const QApplication application(argc, argv);

    ScanController controller(nullptr, nullptr);
    controller.startScan(true, false, ScanController::ModeNone);

    return QApplication::exec();
}
