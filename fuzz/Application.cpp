#include "fuzz/Application.h"

#include <QApplication>
#include <QTextCodec>

#include <array>
#include <string>

namespace Fuzz {

void makeApplication()
{
    // The program removes every occurrence of its name from paths.
    static std::string name("OrbwellFuzzing");
    static std::array<char *, 2> arguments{name.data(), nullptr};
    static int count = 1;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    new QApplication(count, arguments.data());
}

} // namespace Fuzz
