#include "SimDetect/Steam/SteamManifest.h"

#include "SimDetect/RegularFile.h"
#include "SimDetect/Steam/TextFormat.h"

namespace Quillmont::SimDetect {

namespace {

constexpr quint64 uninstalled = 1;
constexpr quint64 fullyInstalled = 4;

// Any other name could lead out of the library.
bool isPlainName(const QString &name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..")
        && !name.contains(u'/') && !name.contains(u'\\') && !name.contains(QChar::Null);
}

QString objectionToFlags(const QString &written)
{
    bool isReadable = false;
    // StateFlags can be written as a negative number when bit 31 is set.
    auto flags = static_cast<quint64>(written.trimmed().toLongLong(&isReadable));
    if (!isReadable)
        flags = written.trimmed().toULongLong(&isReadable);
    if (isReadable && (flags & uninstalled) != 0)
        return QStringLiteral("uninstalled (StateFlags %1)").arg(flags);
    if (isReadable && (flags & fullyInstalled) == 0)
        return QStringLiteral("not fully installed (StateFlags %1)").arg(flags);
    return {};
}

} // namespace

SteamManifest::SteamManifest(const QString &path, const QString &appId, qint64 &allowance)
{
    const RegularFile file(path, allowance, TextFormat::maxFileSize);
    m_objection = file.problem();
    if (m_objection.isEmpty())
        m_objection = parse(file.content());
    if (m_objection.isEmpty())
        m_objection = objectionToState(appId);
}

QString SteamManifest::parse(const QByteArray &content)
{
    TextFormat text(content);
    const bool isManifest = text.enter("AppState");
    while (isManifest && text.next()) {
        for (const char *name : {"appid", "installdir", "stateflags"})
            if (text.isKey(name) && !m_fields.contains(QLatin1String(name)))
                m_fields.insert(QLatin1String(name), text.value());
        text.skip();
    }
    if (text.isBroken())
        return QStringLiteral("cut off, or not in Steam's text format");
    return isManifest ? QString() : QStringLiteral("no AppState in it");
}

QString SteamManifest::objectionToState(const QString &appId) const
{
    const QString written = m_fields.value(QStringLiteral("appid"), appId).trimmed();
    if (written != appId)
        return QStringLiteral("it is about another game");
    if (!isPlainName(folderName()))
        return QStringLiteral("installdir is not a plain name");
    return objectionToFlags(m_fields.value(QStringLiteral("stateflags")));
}

} // namespace Quillmont::SimDetect
