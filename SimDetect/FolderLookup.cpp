#include "SimDetect/FolderLookup.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace Quillmont::SimDetect {

namespace {

// Far more names than a folder above a simulator has.
constexpr int maxNames = 20000;

// The systems' maximum.
constexpr int maxPathLength = 4096;
// Deeper than anybody keeps a simulator; each name costs disk access.
constexpr int maxDepth = 128;

QString inOtherCase(const QString &name)
{
    const QString upper = name.toUpper();
    return upper == name ? name.toLower() : upper;
}

// Stricter than full case folding, which also equates names of different lengths.
bool isSameName(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

// A file system that ignores letter case finds the name in any spelling.
bool existsInOtherCase(const QString &folder, const QString &name)
{
    const QString other = inOtherCase(name);
    return other != name && QFileInfo::exists(folder + u'/' + other);
}

// After a link this is the real parent, as for the system; empty above the root.
QString parent(const QString &folder)
{
    const QFileInfo info(folder);
    const QString real = info.isSymLink() ? info.canonicalFilePath() : folder;
    return real.left(std::max(0, real.lastIndexOf(u'/')));
}

} // namespace

QString FolderLookup::find(const QString &path)
{
    return path.startsWith(u'/') ? find(QString(), path) : QString();
}

QString FolderLookup::find(const QString &folder, const QString &relative)
{
    if (relative.size() > maxPathLength || relative.contains(QChar::Null))
        return {};
    QString found = folder;
    const auto names = relative.split(u'/', Qt::SkipEmptyParts);
    if (names.size() > maxDepth)
        return {};
    for (const auto &name : names) {
        if (name == QLatin1String("."))
            continue;
        const bool isUp = name == QLatin1String("..");
        found = isUp ? parent(found) : child(found, name);
        if (found.isEmpty() && !isUp)
            return {};
    }
    return found.isEmpty() ? QStringLiteral("/") : found;
}

QString FolderLookup::spelled(const QString &folder, const QString &relative)
{
    QString path = folder;
    const auto names = relative.split(u'/', Qt::SkipEmptyParts);
    for (const auto &name : names) {
        const QString exact = path + u'/' + name;
        const auto found = QFileInfo::exists(exact) ? QStringList() : spellings(path, name);
        const bool isSure = found.size() == 1 && isSameName(found.constFirst(), name);
        path = isSure ? path + u'/' + found.constFirst() : exact;
    }
    return path;
}

QStringList FolderLookup::names(const QString &folder)
{
    const auto known = m_names.constFind(folder);
    if (known != m_names.constEnd())
        return *known;
    QStringList names;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (it.hasNext() && names.size() < maxNames) {
        it.next();
        names.append(it.fileName());
    }
    names.sort();
    m_names.insert(folder, names);
    return names;
}

QStringList FolderLookup::spellings(const QString &folder, const QString &name)
{
    auto known = m_spellings.find(folder);
    if (known == m_spellings.end()) {
        known = m_spellings.insert(folder, {});
        const QStringList all = names(folder);
        for (const auto &one : all)
            (*known)[one.toCaseFolded()].append(one);
    }
    return known->value(name.toCaseFolded());
}

QString FolderLookup::child(const QString &folder, const QString &name)
{
    QString exact = folder + u'/' + name;
    const bool isThere = QFileInfo::exists(exact);
    if (isThere && !existsInOtherCase(folder, name))
        return exact;
    const QStringList all = spellings(folder.isEmpty() ? QStringLiteral("/") : folder, name);
    if (isThere && all.contains(name))
        return exact;
    for (const auto &spelling : all) {
        QString path = folder + u'/' + spelling;
        if (isSameName(spelling, name) && QFileInfo::exists(path))
            return path;
    }
    return isThere ? exact : QString();
}

} // namespace Quillmont::SimDetect
