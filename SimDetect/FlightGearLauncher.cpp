#include "SimDetect/FlightGearLauncher.h"

#include "SimDetect/FolderLookup.h"
#include "SimDetect/RegularFile.h"

#include <QRegularExpression>

#include <algorithm>

namespace Quillmont::SimDetect {

namespace {

// Far more versions than anybody keeps; each one costs disk access.
constexpr int maxFolders = 256;

// UTF-8, or Latin-1 with escapes as older launchers write it.
QString decoded(const QByteArray &content)
{
    const QString text = QString::fromUtf8(content);
    return text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(content) : text;
}

// A value without its quotes and escapes.
QString plain(const QString &written)
{
    static const QRegularExpression special(QStringLiteral(R"("|\\x([0-9a-fA-F]+)|\\([\s\S]))"));
    QString text;
    int begin = 0;
    for (auto it = special.globalMatch(written); it.hasNext();) {
        const auto match = it.next();
        text += written.midRef(begin, match.capturedStart() - begin);
        begin = match.capturedEnd();
        if (match.capturedLength(1) > 0)
            text += QChar(static_cast<ushort>(match.capturedRef(1).right(4).toUInt(nullptr, 16)));
        text += match.capturedRef(2);
    }
    return text + written.midRef(begin);
}

} // namespace

FlightGearLauncher::FlightGearLauncher(const QString &home, FolderLookup &lookup)
{
    if (home.isEmpty())
        return;
    const QString folder = home + QStringLiteral("/FlightGear");
    static const QRegularExpression ini(QStringLiteral("^FlightGear.*\\.ini$"));
    const QStringList names = lookup.names(folder).filter(ini);
    for (const auto &name : names) {
        const QString path = folder + u'/' + name;
        const RegularFile file(path, lookup.allowance());
        if (file.problem().isEmpty())
            read(decoded(file.content()));
        else
            m_roots.append({path, file.problem()});
    }
    for (const Choice &choice : qAsConst(m_chosen))
        m_roots.append({choice.second, {}});
}

void FlightGearLauncher::read(const QString &text)
{
    bool isGeneral = false;
    const auto lines = text.split(u'\n');
    for (const auto &written : lines) {
        const QString line = written.trimmed();
        if (line.startsWith(u'['))
            isGeneral = line.compare(QLatin1String("[General]"), Qt::CaseInsensitive) == 0;
        else if (isGeneral)
            readKey(line.section(u'=', 0, 0).trimmed(), line.section(u'=', 1).trimmed());
    }
}

void FlightGearLauncher::readKey(const QString &key, const QString &value)
{
    const QString root = QStringLiteral("fg-root-");
    if (key == QLatin1String("download-dir") && m_downloadFolders.size() < maxFolders) {
        m_downloadFolders.append(plain(value));
        m_downloadFolders.removeDuplicates(); // several versions name the same one
    } else if (key.startsWith(root)) {
        const QString version = key.mid(root.size()).replace(u'-', u'.');
        const QString folder = plain(value);
        if (!folder.isEmpty() && folder != QLatin1String("!ask"))
            choose({QVersionNumber::fromString(version), folder});
    }
}

void FlightGearLauncher::choose(const Choice &choice)
{
    const auto isHigher = [](const Choice &left, const Choice &right) {
        return left.first > right.first;
    };
    const auto place = std::upper_bound(m_chosen.begin(), m_chosen.end(), choice, isHigher);
    m_chosen.insert(place, choice);
    if (m_chosen.size() > maxFolders)
        m_chosen.removeLast();
}

} // namespace Quillmont::SimDetect
