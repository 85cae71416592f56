#include "SimDetect/Collector.h"

#include "SimDetect/Candidate.h"
#include "SimDetect/DetectionLog.h"
#include "SimDetect/FolderLookup.h"

#include <QFileInfo>

namespace Quillmont::SimDetect {

namespace {

// A path from a file may contain line ends, or megabytes; the log gets one short line.
QString printable(const QString &path)
{
    QString text = path.left(500);
    for (auto &character : text)
        if (!character.isPrint() && !character.isSurrogate())
            character = u'?';
    return text;
}

QString whyNotFound(const QString &path)
{
    return path.startsWith(u'/') ? QStringLiteral("no such folder")
                                 : QStringLiteral("not an absolute path");
}

QString objectionTo(const QString &folder, const Collector::Check &check)
{
    const QFileInfo info(folder);
    if (!info.isDir())
        return QStringLiteral("not a folder");
    QString objection = check(folder);
    // Without permission nothing in a folder can be seen, so the reason itself would mislead.
    if (!objection.isEmpty() && !(info.isReadable() && info.isExecutable()))
        return QStringLiteral("no permission to look inside");
    return objection;
}

} // namespace

Collector::Collector(FolderLookup &lookup)
    : m_lookup(lookup)
{ }

void Collector::offer(const QString &code, const QVector<Candidate> &candidates, const Check &check)
{
    if (has(code))
        return;
    const QString folder = firstValid(code, candidates, check);
    if (folder.isEmpty())
        return;
    m_paths.insert(code, folder);
    m_findings.append({code, m_origin, folder, {}});
}

void Collector::turnDown(const QString &code, const QString &path, const QString &reason)
{
    qCDebug(detectionLog,
            "%s not taken: %s: %s",
            qUtf8Printable(code),
            qUtf8Printable(printable(path)),
            qUtf8Printable(reason));
    m_findings.append({code, m_origin, path, reason});
}

QString
Collector::firstValid(const QString &code, const QVector<Candidate> &candidates, const Check &check)
{
    for (const auto &candidate : candidates) {
        QString folder = validFolder(code, candidate, check);
        if (!folder.isEmpty())
            return folder;
    }
    return {};
}

QString Collector::validFolder(const QString &code, const Candidate &candidate, const Check &check)
{
    QString folder = candidate.objection.isEmpty() ? m_lookup.find(candidate.path) : QString();
    const QString resolved = QFileInfo(folder).canonicalFilePath();
    if (!isFirstOffer(code, resolved.isEmpty() ? candidate.path : resolved))
        return {};
    if (!candidate.objection.isEmpty()) {
        turnDown(code, candidate.path, candidate.objection);
    } else if (folder.isEmpty()) {
        turnDown(code, candidate.path, whyNotFound(candidate.path));
    } else if (const auto objection = objectionTo(folder, check); !objection.isEmpty()) {
        turnDown(code, folder, objection);
    } else {
        return folder;
    }
    return {};
}

bool Collector::isFirstOffer(const QString &code, const QString &identity)
{
    auto &offered = m_offered[code];
    const int before = offered.size();
    offered.insert(identity);
    return offered.size() > before;
}

} // namespace Quillmont::SimDetect
