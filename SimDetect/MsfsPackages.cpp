#include "SimDetect/MsfsPackages.h"

#include "SimDetect/Candidate.h"
#include "SimDetect/Collector.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/RegularFile.h"
#include "SimDetect/Steam/Steam.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace Quillmont::SimDetect {

namespace {

QString decoded(const QByteArray &content)
{
    auto *utf8 = QTextCodec::codecForName("UTF-8");
    QString text = QTextCodec::codecForUtfText(content, utf8)->toUnicode(content);
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    return text;
}

// The space after the key excludes InstalledPackagesPathNextBoot.
QString packagesPath(const QString &text)
{
    static const QRegularExpression line(
        QStringLiteral("^[ \\t]*InstalledPackagesPath[ \\t][^\"\\r\\n]*\"([^\"\\r\\n]*)\""),
        QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption);
    return line.match(text).captured(1);
}

} // namespace

MsfsPackages::MsfsPackages(Collector &collector, FolderLookup &lookup, Steam &steam)
    : m_collector(collector)
    , m_lookup(lookup)
    , m_steam(steam)
{ }

void MsfsPackages::find()
{
    m_collector.setOrigin(QStringLiteral("UserCfg.opt in Steam's Proton prefix"));
    m_collector.offer(
        QStringLiteral("MSFS2020"),
        candidates(QStringLiteral("1250410"), QStringLiteral("Microsoft Flight Simulator")),
        [this](const QString &folder) { return check2020(folder); });
    m_collector.offer(
        QStringLiteral("MSFS2024"),
        candidates(QStringLiteral("2537590"), QStringLiteral("Microsoft Flight Simulator 2024")),
        [this](const QString &folder) { return check2024(folder); });
}

// Every prefix is searched: Steam may create it in another library than the game's.
QVector<Candidate> MsfsPackages::candidates(const QString &appId, const QString &name)
{
    QVector<Candidate> candidates;
    const QStringList prefixes = m_steam.prefixes(appId);
    for (const auto &prefix : prefixes) {
        const QString roaming = QStringLiteral("drive_c/users/steamuser/AppData/Roaming/");
        const QString file = m_lookup.find(prefix, roaming + name + QStringLiteral("/UserCfg.opt"));
        if (!file.isEmpty())
            candidates.append(candidateOf(file, prefix));
    }
    return candidates;
}

Candidate MsfsPackages::candidateOf(const QString &file, const QString &prefix)
{
    const RegularFile settings(file, m_lookup.allowance());
    if (!settings.problem().isEmpty())
        return {file, settings.problem()};
    const QString written = packagesPath(decoded(settings.content()));
    if (written.isEmpty())
        return {file, QStringLiteral("no InstalledPackagesPath in it")};
    const QString path = onDisk(prefix, written);
    if (path.isEmpty())
        return {file, QStringLiteral("its InstalledPackagesPath does not begin with a drive")};
    return {path, {}};
}

// Empty where @p path does not begin with a drive.
QString MsfsPackages::onDisk(const QString &prefix, const QString &path)
{
    static const QRegularExpression root(QStringLiteral("^([A-Za-z]):/"));
    const QString slashed = QString(path).replace(u'\\', u'/');
    const QString letter = root.match(slashed).captured(1).toLower();
    if (letter.isEmpty())
        return {};
    QString rest = QDir::cleanPath(slashed.mid(2));
    while ((rest + u'/').startsWith(QLatin1String("/../")))
        rest.remove(0, 3); // Nothing is above a drive's root.
    if (letter == QLatin1String("c"))
        return prefix + QStringLiteral("/drive_c") + rest;
    return drive(prefix + QStringLiteral("/dosdevices/%1:").arg(letter)) + rest;
}

// Follows the link at @p path but no further: the user knows its target, and Proton removes some of
// these links when it starts.
QString MsfsPackages::drive(const QString &path)
{
    std::error_code failure;
    const QString link = m_lookup.find(path);
    const auto target
        = std::filesystem::read_symlink(QFile::encodeName(link).toStdString(), failure);
    const QString written = QFile::decodeName(target.c_str());
    const QString folder = target.is_absolute() ? m_lookup.find(written)
                                                : m_lookup.find(QFileInfo(link).path(), written);
    return failure || folder.isEmpty() ? path : folder;
}

QString MsfsPackages::check2020(const QString &folder)
{
    if (hasFolder(folder, "Community") || hasFolder(folder, "Official/Steam")
        || hasFolder(folder, "Official/OneStore"))
        return {};
    return QStringLiteral("no Community, Official/Steam or Official/OneStore");
}

QString MsfsPackages::check2024(const QString &folder)
{
    const auto names = m_lookup.names(folder);
    const bool hasCommunity
        = std::any_of(names.cbegin(), names.cend(), [&folder](const QString &name) {
              return name.startsWith(QLatin1String("Community"), Qt::CaseInsensitive)
                  && QFileInfo(folder + u'/' + name).isDir();
          });
    if (hasCommunity || hasFolder(folder, "Official2024") || hasFolder(folder, "StreamedPackages"))
        return {};
    return QStringLiteral("no Community, Official2024 or StreamedPackages");
}

bool MsfsPackages::hasFolder(const QString &folder, const char *relative)
{
    return QFileInfo(m_lookup.find(folder, QLatin1String(relative))).isDir();
}

} // namespace Quillmont::SimDetect
