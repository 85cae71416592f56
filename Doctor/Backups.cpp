#include "Doctor/Backups.h"

#include "Doctor/Quoting.h"
#include "Doctor/TagReader.h"
#include "Library/Helpers/FileHelper.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/XmlDocument.h"
#include "Library/Xml/editedXml.h"
#include "ViewControllers/Payload/SimulatorFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Library::Text::XmlSource;
using Quillmont::Library::Xml::RootChild;
using Quillmont::Library::Xml::XmlDocument;

namespace Quillmont::Utility::Doctor {

namespace {

bool isWellFormed(const QString &path)
{
    QString problem;
    const QByteArray bytes = FileHelper::read(path, Library::Xml::maxFileSize, &problem);
    const auto nothing = [](const RootChild &) {
        return false;
    };
    const QString text = XmlSource(bytes).text();
    return problem.isEmpty() && XmlDocument(text, nothing).problem().isEmpty() && !isWebPage(text);
}

QString digitsIn(const QString &name)
{
    return name.mid(name.size() - 19, 15);
}

QDateTime timeIn(const QString &name)
{
    return QDateTime::fromString(digitsIn(name), ViewControllers::backupTimeForm());
}

QStringList backupNames(const QFileInfo &file)
{
    const QRegularExpression form(
        u'^' + QRegularExpression::escape(file.fileName())
        + QStringLiteral(R"(_quillmont_orbwell_before_(un)?installation_\d{8}_\d{6}\.bak$)"));
    // Names that only look like that hold no time.
    QStringList names = file.dir().entryList(QDir::Files | QDir::Hidden, QDir::NoSort).filter(form);
    names.erase(std::remove_if(names.begin(),
                               names.end(),
                               [](const QString &name) { return !timeIn(name).isValid(); }),
                names.end());
    std::sort(names.begin(), names.end(), [](const QString &left, const QString &right) {
        return digitsIn(left) > digitsIn(right);
    });
    return names;
}

} // namespace

QJsonArray backupsOf(const QString &path)
{
    constexpr int maxRead = 20;
    const QFileInfo file(path);
    QJsonArray backups;
    const QStringList names = backupNames(file);
    for (const QString &name : names) {
        const QString backup = file.path() + u'/' + name;
        QJsonObject object{{QStringLiteral("path"), backup},
                           {QStringLiteral("time"), timeIn(name).toString(Qt::ISODate)},
                           {QStringLiteral("size"), QFileInfo(backup).size()},
                           {QStringLiteral("restore"),
                            QStringLiteral("cp -- %1 %2").arg(shellWord(backup), shellWord(path))}};
        if (backups.size() < maxRead)
            object.insert(QStringLiteral("wellFormed"), isWellFormed(backup));
        backups.append(object);
    }
    return backups;
}

int newestGood(const QJsonArray &backups)
{
    const auto good = std::find_if(backups.begin(), backups.end(), [](const QJsonValue &backup) {
        return backup.toObject().value(QLatin1String("wellFormed")).toBool();
    });
    return good == backups.end() ? -1 : static_cast<int>(good - backups.begin());
}

QString timeOf(const QJsonObject &backup)
{
    return backup.value(QLatin1String("time")).toString().replace(u'T', u' ');
}

} // namespace Quillmont::Utility::Doctor
