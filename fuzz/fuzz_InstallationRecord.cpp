#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/ScanController.h"
#include "fuzz/Application.h"
#include "fuzz/Expect.h"
#include "tests/support/Sandbox.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <cstddef>
#include <cstdint>

using Fuzz::expect;
using Quillmont::Utility::Models::FlightSimScan;
using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::ViewControllers::ScanController;

namespace {

// One controller and its simulators, two of which have one name, for the whole run.
class Office
{
public:
    Office();

    void setRecord(const QByteArray &bytes) const;
    QByteArray record() const;
    void forgetFolders() const;

    ScanController *controller = nullptr;

private:
    void addSimulator(const QString &name) const;

    QString path() const
    {
        return m_sandbox.dataRoot() + QStringLiteral("Quillmont/Orbwell/.mapping");
    }

    Tests::Sandbox m_sandbox;
};

Office::Office()
{
    Fuzz::makeApplication();
    controller = new ScanController(nullptr, nullptr);
    for (const char *simulator : {"Sim A", "", "Sim \xd0\x91", "Sim A"})
        addSimulator(QString::fromUtf8(simulator));
}

void Office::addSimulator(const QString &name) const
{
    const QJsonObject file{{QStringLiteral("destination"), QStringLiteral("Modules\\a.dll")}};
    auto *scan = new FlightSimScan(controller,
                                   {{QStringLiteral("name"), name},
                                    {QStringLiteral("files"), QJsonArray{file, QJsonObject()}}});
    controller->mappings.append(new FlightSimulatorMapping(scan, {}));
}

void Office::forgetFolders() const
{
    for (auto *mapping : qAsConst(controller->mappings)) {
        mapping->path.clear();
        mapping->note.clear();
    }
}

void Office::setRecord(const QByteArray &bytes) const
{
    QFile file(path());
    expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
           "the record can be prepared");
}

QByteArray Office::record() const
{
    QFile file(path());
    expect(file.open(QIODevice::ReadOnly), "there is a record");
    return file.readAll();
}

Office &office()
{
    static Office office;
    return office;
}

// The records in the bytes; none if they are not a list.
QJsonArray records(const QByteArray &bytes)
{
    const QString text = QTextStream(bytes).readAll();
    return QJsonDocument::fromJson(text.toUtf8()).array();
}

bool has(const QJsonValue &record, const QString &name)
{
    const QJsonValue written = record[QLatin1String("name")];
    return written.isString() && written.toString() == name;
}

// The records without the last one of this name.
QJsonArray without(const QJsonArray &all, const QString &name)
{
    int last = -1;
    for (int i = 0; i < all.size(); ++i)
        last = has(all.at(i), name) ? i : last;
    QJsonArray rest;
    for (int i = 0; i < all.size(); ++i) {
        if (i != last)
            rest.append(all.at(i));
    }
    return rest;
}

// The folder that the record gives to a simulator of @p name, if any.
QString folderOf(const QJsonArray &all, const QString &name)
{
    QString folder;
    for (const QJsonValue &record : all) {
        bool isComplete = true;
        const QJsonArray files = record[QLatin1String("files")].toArray();
        for (const QJsonValue &file : files)
            isComplete &= QFile::exists(file.toString());
        if (isComplete && record[QLatin1String("name")].toString() == name)
            folder = record[QLatin1String("path")].toString();
    }
    return folder;
}

void checkReading(const QByteArray &bytes)
{
    office().forgetFolders();
    office().setRecord(bytes);
    office().controller->getUserSimulatorMapping();
    expect(office().record() == bytes, "reading changes nothing");

    QStringList seen;
    for (const auto *mapping : qAsConst(office().controller->mappings)) {
        const QString &name = mapping->scan->name;
        const bool isFirst = !seen.contains(name);
        seen.append(name);
        const QString folder = isFirst ? folderOf(records(bytes), name) : QString();
        expect(mapping->path == folder && mapping->note == folder,
               "the first simulator of a name gets the folder of the last record that applies");
    }
}

// Checked as bytes: QTextStream drops a byte-order mark at the beginning.
void checkWritten(const QJsonArray &expected)
{
    const QByteArray written = office().record();
    expect(QString::fromUtf8(written).toUtf8() == written, "the record is UTF-8");
    expect(QJsonDocument::fromJson(written).isArray(), "the record is a list");
    expect(QJsonDocument(expected).toJson(QJsonDocument::Indented) == written,
           "the other records stay, and the new one is the last");
}

void checkWriting(const QByteArray &bytes, FlightSimulatorMapping *mapping)
{
    const QString folder = QStringLiteral("/sims/Bücher");
    const QString name = mapping->scan->name;
    mapping->path = folder;
    QJsonArray expected = without(records(bytes), name);
    expected.append(
        QJsonObject{{QStringLiteral("name"), name},
                    {QStringLiteral("path"), folder},
                    {QStringLiteral("files"),
                     QJsonArray{folder + u'/', folder + QLatin1String("/Modules/a.dll")}}});

    office().setRecord(bytes);
    office().controller->saveInstallationInfo(mapping, false);
    checkWritten(expected);

    expected = without(records(office().record()), name);
    office().controller->saveInstallationInfo(mapping, true);
    checkWritten(expected);
    expect(office().controller->m_errorMessage.isEmpty(), "nothing of it is an error");
}

} // namespace

// Any bytes are read as records or as none, and other records are kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    checkReading(bytes);
    const auto &mappings = office().controller->mappings;
    checkWriting(bytes, mappings.at(static_cast<int>(size) % mappings.size()));
    return 0;
}
