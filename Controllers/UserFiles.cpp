#include "Controllers/UserFiles.h"

#include <QCoreApplication>
#include <QVariant>

namespace Quillmont::Utility::Controllers {

namespace {

// Only QGuiApplication has a display name; it defaults to the application name.
QString programName()
{
    const auto *program = QCoreApplication::instance();
    const QVariant shown = program ? program->property("applicationDisplayName") : QVariant();
    return shown.isValid() ? shown.toString() : QCoreApplication::applicationName();
}

} // namespace

QString userDataRoot(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::writableLocation(location).remove(programName());
}

QString recordFolder()
{
    return userDataRoot() + QStringLiteral("/Quillmont/Orbwell");
}

QString recordFile()
{
    return recordFolder() + QStringLiteral("/.mapping");
}

QString recordFileToRead()
{
    return recordFolder() + QStringLiteral("//.mapping");
}

QString settingsFolder()
{
    QString path = userDataRoot() + QStringLiteral("/Quillmont/Vellum/");
    // One pass turns four slashes into two. Folders with the program's own name leave that many.
    while (path.contains(QLatin1String("//")))
        path.replace(QLatin1String("//"), QLatin1String("/"));
    return path;
}

QString settingsFile()
{
    return userDataRoot() + QStringLiteral("Quillmont/Vellum/.settings");
}

QString launcherPathFile()
{
    return settingsFolder().replace(QLatin1String("Vellum"), QLatin1String("Orbwell"))
        + QStringLiteral(".path");
}

} // namespace Quillmont::Utility::Controllers
