#include "ViewControllers/Payload/Catalogue.h"

#include "Controllers/ActionLog.h"
#include "Models/FlightSimScan.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMultiMap>
#include <QTextStream>

using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Models::FlightSimScan;

namespace Quillmont::Utility::ViewControllers {

QString catalogueFile()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()
                                    + QStringLiteral("/flightsims.json"));
}

QString payloadFolder()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()
                                    + QStringLiteral("/plugins/"));
}

QString catalogueText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        logAction() << "catalogue" << file.fileName() << "not read:" << file.errorString();
        return {};
    }
    logAction() << "catalogue" << file.fileName() << "read";
    return QTextStream(&file).readAll();
}

// Detected simulators come first, each group in reverse catalogue order, since QMultiMap returns
// the newest value of a key first.
QList<FlightSimScan *>
catalogueEntries(QObject *owner, const QString &content, const QMap<QString, QString> &simPaths)
{
    enum Group {
        Detected,
        Others
    };

    QMultiMap<int, FlightSimScan *> entries;
    const QJsonArray catalogue = QJsonDocument::fromJson(content.toLocal8Bit()).array();
    for (const QJsonValue &element : catalogue) {
        auto *entry = new FlightSimScan(owner, element.toObject());
        entries.insert(simPaths.contains(entry->simcode) ? Detected : Others, entry);
    }
    return entries.values();
}

} // namespace Quillmont::Utility::ViewControllers
