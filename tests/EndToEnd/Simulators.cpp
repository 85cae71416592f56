#include "tests/EndToEnd/Simulators.h"

#include "tests/support/Files.h"
#include "tests/support/Program.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

namespace Tests {

static QJsonObject pluginFile(const char *source, const char *destination)
{
    return {{QStringLiteral("source"), QLatin1String(source)},
            {QStringLiteral("destination"), QLatin1String(destination)}};
}

static QJsonObject value(const char *key, const char *text)
{
    return {{QStringLiteral("key"), QLatin1String(key)},
            {QStringLiteral("value"), QLatin1String(text)}};
}

static QJsonObject
entry(const QString &name, const QString &folder, int type, const QJsonArray &files)
{
    return {{QStringLiteral("name"), name},
            {QStringLiteral("location"), 1},
            {QStringLiteral("path"), QString(folder).replace(u'/', u'\\')},
            {QStringLiteral("type"), type},
            {QStringLiteral("files"), files}};
}

QJsonObject pluginFolderEntry(const QString &name, const QString &folder)
{
    return entry(name,
                 folder,
                 1,
                 {pluginFile(R"(X-Plane\64\lin.xpl)", R"(Resources\plugins\Orbwell\64\lin.xpl)"),
                  pluginFile(R"(X-Plane\about.txt)", R"(Resources\plugins\Orbwell\about.txt)")});
}

QJsonObject launcherEntry(const QString &name, const QString &folder, const QString &configuration)
{
    QJsonObject launcher = entry(
        name,
        folder,
        0,
        {pluginFile(R"(FSX\QuillmontOrbwell_64.dll)", R"(Gauges\QuillmontOrbwell_64.dll)")});
    launcher.insert(
        QStringLiteral("config"),
        QJsonObject{{QStringLiteral("path"), configuration},
                    {QStringLiteral("parent"), QStringLiteral("Launch.Addon")},
                    {QStringLiteral("values"),
                     QJsonArray{value("Name", "Quillmont Orbwell"),
                                value("Disabled", "False"),
                                value("Path", "GaugesQuillmontOrbwell_64.dll")}},
                    {QStringLiteral("remove"),
                     QJsonObject{{QStringLiteral("parent"), QStringLiteral("Launch.Addon")},
                                 {QStringLiteral("key"), QStringLiteral("Name")},
                                 {QStringLiteral("value"), QStringLiteral("Quillmont Orbwell")},
                                 {QStringLiteral("delete_parent"), true}}}});
    return launcher;
}

void place(const Program &program, const QJsonArray &entries)
{
    const QString beside = program.folder() + u'/';
    writeFile(beside + QStringLiteral("flightsims.json"), QJsonDocument(entries).toJson());
    writeFile(beside + QStringLiteral("plugins/X-Plane/64/lin.xpl"), "plugin");
    writeFile(beside + QStringLiteral("plugins/X-Plane/about.txt"), "about");
    writeFile(beside + QStringLiteral("plugins/FSX/QuillmontOrbwell_64.dll"), "module");
}

QJsonObject recordOf(const QString &simulator, const QString &dataRoot)
{
    const QByteArray content = readFile(dataRoot + QStringLiteral("Quillmont/Orbwell/.mapping"));
    QJsonObject found;
    const QJsonArray records = QJsonDocument::fromJson(content).array();
    for (const auto &record : records) {
        if (record.toObject().value(QLatin1String("name")) == simulator) {
            if (!found.isEmpty())
                return {};
            found = record.toObject();
        }
    }
    return found;
}

QStringList backupsOf(const QString &file, const QString &occasion)
{
    const QFileInfo info(file);
    const QRegularExpression name(
        u'^' + QRegularExpression::escape(info.fileName())
        + QLatin1String(R"(_quillmont_orbwell_before_%1_\d{8}_\d{6}\.bak$)").arg(occasion));
    return info.dir().entryList(QDir::Files).filter(name);
}

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(u' ');
}

QStringList quietInstallation()
{
    return words("--INSTALL 1");
}

} // namespace Tests
