#include "Controllers/UserFiles.h"

#include <QGuiApplication>

namespace Quillmont::Utility::Controllers {

QString userDataRoot(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::writableLocation(location).remove(
        QGuiApplication::applicationDisplayName());
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
    // One pass makes two slashes of four; folders of the program's own name leave such a row.
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
