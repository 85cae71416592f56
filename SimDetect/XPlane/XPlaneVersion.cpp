#include "SimDetect/XPlane/XPlaneVersion.h"

#include "SimDetect/FolderLookup.h"
#include "SimDetect/RegularFile.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace Quillmont::SimDetect {

namespace {

// The number that @p pattern captures first in @p text, or 0.
int numberIn(const QString &text, const QString &pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    return expression.match(text).captured(1).toInt();
}

int readLog(const QString &folder)
{
    // Only the first line matters, and the rest can be large.
    const QByteArray beginning = RegularFile::beginning(folder + QStringLiteral("/Log.txt"), 4096);
    return numberIn(QString::fromUtf8(beginning),
                    QStringLiteral("^[\\x{FEFF} \\t]*Log\\.txt for X-Plane[ \\t]+([0-9]+)"));
}

// The text of @p key in the property list @p content; empty if it has none.
QString plistText(const QByteArray &content, const QString &key)
{
    QXmlStreamReader xml(content);
    const bool isList = xml.readNextStartElement() && xml.readNextStartElement();
    while (isList && xml.readNextStartElement()) {
        const bool isKey = xml.name() == QLatin1String("key")
            && xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed() == key;
        if (isKey && xml.readNextStartElement())
            return xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
        if (xml.isStartElement())
            xml.skipCurrentElement();
    }
    return {};
}

int readBundle(const QString &folder, qint64 &allowance)
{
    const QString path = folder + QStringLiteral("/X-Plane.app/Contents/Info.plist");
    if (!QFileInfo::exists(path))
        return 0;
    const QString version = plistText(RegularFile(path, allowance).content(),
                                      QStringLiteral("CFBundleShortVersionString"));
    return numberIn(version, QStringLiteral("^([0-9]+)"));
}

} // namespace

XPlaneVersion::XPlaneVersion(FolderLookup &lookup)
    : m_lookup(lookup)
{ }

int XPlaneVersion::in(const QString &folder)
{
    const QString resolved = QFileInfo(folder).canonicalFilePath();
    const auto known = m_known.constFind(resolved);
    if (known != m_known.constEnd())
        return *known;
    return *m_known.insert(resolved, read(folder));
}

int XPlaneVersion::read(const QString &folder)
{
    if (const int version = readLog(folder); version != 0)
        return version;
    if (const int version = readBundle(folder, m_lookup.allowance()); version != 0)
        return version;
    return readInstaller(folder);
}

// With the installers of two versions, the later one was used last.
int XPlaneVersion::readInstaller(const QString &folder)
{
    int version = 0;
    const auto names = m_lookup.names(folder);
    for (const auto &name : names) {
        if (name.startsWith(QLatin1String("X-Plane "))) {
            version
                = std::max(version, numberIn(name, QStringLiteral("^X-Plane ([0-9]+) Installer")));
        }
    }
    return version;
}

} // namespace Quillmont::SimDetect
