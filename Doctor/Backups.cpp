#include "Doctor/Backups.h"

#include "Doctor/Quoting.h"
#include "Library/Helpers/FileHelper.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/XmlDocument.h"
#include "Library/Xml/editedXml.h"

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
    return problem.isEmpty() && XmlDocument(XmlSource(bytes).text(), nothing).problem().isEmpty();
}

QString timeIn(const QString &name)
{
    return name.mid(name.size() - 19, 15);
}

QStringList backupNames(const QFileInfo &file)
{
    const QRegularExpression form(
        u'^' + QRegularExpression::escape(file.fileName())
        + QStringLiteral(R"(_quillmont_orbwell_before_(un)?installation_\d{8}_\d{6}\.bak$)"));
    QStringList names = file.dir().entryList(QDir::Files | QDir::Hidden, QDir::NoSort).filter(form);
    std::sort(names.begin(), names.end(), [](const QString &left, const QString &right) {
        return timeIn(left) > timeIn(right);
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
        const QDateTime time
            = QDateTime::fromString(timeIn(name), QStringLiteral("yyyyMMdd_HHmmss"));
        QJsonObject object{{QStringLiteral("path"), backup},
                           {QStringLiteral("time"), time.toString(Qt::ISODate)},
                           {QStringLiteral("size"), QFileInfo(backup).size()},
                           {QStringLiteral("restore"),
                            QStringLiteral("cp -- %1 %2").arg(shellWord(backup), shellWord(path))}};
        if (backups.size() < maxRead)
            object.insert(QStringLiteral("wellFormed"), isWellFormed(backup));
        backups.append(object);
    }
    return backups;
}

} // namespace Quillmont::Utility::Doctor
