#include "benchmarks/ViewControllers/Simulators.h"

#include "ViewControllers/ScanController.h"
#include "Views/ScannerView.h"
#include "tests/support/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

using Quillmont::Utility::ViewControllers::ScanController;
using Tests::writeFile;

namespace Benchmarks {

namespace {

QString beside(const QString &name)
{
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

QString fileName(int number)
{
    return QStringLiteral("orbwell-%1.dat").arg(number, 5, 10, QLatin1Char('0'));
}

QJsonObject
pair(const char *firstKey, const QString &first, const char *secondKey, const QString &second)
{
    return {{QLatin1String(firstKey), first}, {QLatin1String(secondKey), second}};
}

QJsonObject configurationEntry(const QString &path)
{
    return {{QStringLiteral("path"), path},
            {QStringLiteral("parent"), QStringLiteral("Launch.Addon")},
            {QStringLiteral("values"),
             QJsonArray{pair("key", QStringLiteral("Name"), "value", QStringLiteral("Measured"))}}};
}

} // namespace

Simulators::Simulators(int count, Payload payload)
    : m_count(count)
    , m_payload(payload)
{
    placePayload();
    placeCatalogue();
    reset();
}

Simulators::~Simulators()
{
    QFile::remove(beside(QStringLiteral("plugins")));
    QFile::remove(beside(QStringLiteral("flightsims.json")));
}

void Simulators::placePayload() const
{
    const QString payload = m_sandbox.path(QStringLiteral("payload"));
    for (int i = 0; i < m_payload.files; ++i)
        writeFile(payload + u'/' + fileName(i), QByteArray(m_payload.size, char('a' + i % 26)));
    QFile::remove(beside(QStringLiteral("plugins")));
    if (!QFile::link(payload, beside(QStringLiteral("plugins"))))
        qFatal("cannot link the payload");
}

void Simulators::placeCatalogue() const
{
    QJsonArray files;
    for (int i = 0; i < m_payload.files; ++i)
        files.append(
            pair("source", fileName(i), "destination", QStringLiteral("Orbwell\\") + fileName(i)));
    QJsonArray entries;
    for (int i = 0; i < m_count; ++i) {
        QJsonObject entry = pair("name", QStringLiteral("Simulator %1").arg(i), "path", folder(i));
        entry.insert(QStringLiteral("location"), 1);
        entry.insert(QStringLiteral("type"), m_payload.type);
        entry.insert(QStringLiteral("files"), files);
        if (m_payload.type == 0)
            entry.insert(QStringLiteral("config"),
                         configurationEntry(QStringLiteral("Maker/%1/dll.xml").arg(i)));
        entries.append(entry);
    }
    writeFile(beside(QStringLiteral("flightsims.json")), QJsonDocument(entries).toJson());
}

void Simulators::reset() const
{
    QDir(m_sandbox.dataRoot()).removeRecursively();
    for (int i = 0; i < m_count; ++i) {
        QDir(folder(i)).removeRecursively();
        QDir().mkpath(folder(i));
        if (m_payload.type == 0)
            writeFile(configurationFile(i), configuration());
    }
}

Cost Simulators::costOfController(const std::function<void(ScanController *)> &work)
{
    ScanController controller(nullptr, nullptr);
    const std::unique_ptr<QObject> view(controller.view);
    return costOf([&] { work(&controller); });
}

void Simulators::copyBare() const
{
    for (int i = 0; i < m_count; ++i) {
        QDir().mkpath(folder(i) + QStringLiteral("/Orbwell"));
        for (int file = 0; file < m_payload.files; ++file) {
            if (!QFile::copy(beside(QStringLiteral("plugins/")) + fileName(file),
                             folder(i) + QStringLiteral("/Orbwell/") + fileName(file)))
                qFatal("cannot copy");
        }
    }
}

QStringList Simulators::targets() const
{
    QStringList targets;
    for (int i = 0; i < m_count; ++i)
        for (int file = 0; file < m_payload.files; ++file)
            targets.append(folder(i) + QStringLiteral("/Orbwell/") + fileName(file));
    return targets;
}

QByteArray Simulators::configuration()
{
    constexpr int size = 20000;
    QByteArray text = "<?xml version='1.0' encoding='Windows-1252'?>\r\n"
                      "<SimBase.Document Type=\"Launch\" version=\"1,0\">\r\n";
    for (int i = 0; text.size() < size; ++i)
        text += QByteArray("    <Launch.Addon>\r\n"
                           "        <Name>Tide Gauge ")
            + QByteArray::number(i)
            + "</Name>\r\n"
              "        <Disabled>False</Disabled>\r\n"
              "        <Path>C:\\Program Files\\Tide\\tide.exe</Path>\r\n"
              "    </Launch.Addon>\r\n";
    return text + "</SimBase.Document>\r\n";
}

QString Simulators::folder(int simulator) const
{
    return m_sandbox.path(QStringLiteral("sims/%1").arg(simulator));
}

QString Simulators::configurationFile(int simulator) const
{
    return m_sandbox.dataRoot() + QStringLiteral("Maker/%1/dll.xml").arg(simulator);
}

} // namespace Benchmarks
