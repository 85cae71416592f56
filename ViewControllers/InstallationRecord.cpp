#include "ViewControllers/ScanController.h"

#include "Controllers/ActionLog.h"
#include "Controllers/PathEncoding.h"
#include "Controllers/UserFiles.h"
#include "Library/Files/FileWriter.h"
#include "Library/Helpers/FileHelper.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/Record.h"
#include "ViewControllers/Payload/SimulatorFiles.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using Quillmont::Library::Files::FileWriter;
using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::logAction;
using Quillmont::Utility::Controllers::PathEncoding;
using Quillmont::Utility::Controllers::recordFile;
using Quillmont::Utility::Controllers::recordFileToRead;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

void ScanController::createMappingFile()
{
    const QString path = recordFile();
    if (!PathEncoding::survives(path)) {
        logAction() << "nothing is written below a folder whose name is not valid text:" << path;
        return;
    }
    makeFolderOf(path);
    FileWriter::clearUnfinished(path);

    QFile file(path);
    if (!QFile::exists(path))
        file.open(QIODevice::Append); // never truncates, in case the file exists after all
}

void ScanController::getUserSimulatorMapping()
{
    QByteArray bytes;
    readContent(recordFileToRead(), &bytes);
    const QJsonArray records = recordsIn(bytes);
    for (const QJsonValue &element : records) {
        const QJsonObject record = element.toObject();
        if (!isComplete(record))
            continue;
        const QString name = record.value(QLatin1String("name")).toString();
        const auto it = std::find_if(mappings.cbegin(), mappings.cend(), [&name](auto *mapping) {
            return mapping->scan->name == name;
        });
        if (it == mappings.cend())
            continue;
        logAction() << "folder from the record:" << name
                    << record.value(QLatin1String("path")).toString();
        (*it)->path = record.value(QLatin1String("path")).toString();
        (*it)->note = (*it)->path;
    }
}

void ScanController::saveInstallationInfo(FlightSimulatorMapping *mapping, bool uninstalled)
{
    const QString path = recordFile();
    qDebug().noquote().nospace() << "mapping path: " << path;

    QByteArray bytes;
    if (!readContent(path, &bytes) && !FileHelper::isMissing(path)) {
        reportUnwritten(path, QStringLiteral("its records would be lost"));
        return;
    }
    logAction() << "record:" << mapping->scan->name << (uninstalled ? "is out" : "is in");
    saveContent(path, updatedRecord(bytes, mapping, uninstalled));
}

} // namespace Quillmont::Utility::ViewControllers
