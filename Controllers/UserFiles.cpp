#include "Controllers/UserFiles.h"

#include <QCoreApplication>
#include <QVariant>

namespace Quillmont::Utility::Controllers {

namespace {

// Only a program with windows has a display name. Any other has the name that this falls back to.
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
