#include "Doctor/PlannedDisk.h"

#include "ViewControllers/Payload/Leftovers.h"
#include "ViewControllers/Payload/SimulatorFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace Quillmont::Utility::Doctor {

namespace {

QStringList sorted(const QSet<QString> &paths)
{
    QStringList list = paths.values();
    std::sort(list.begin(), list.end());
    return list;
}

QStringList namesIn(const QString &path)
{
    QStringList names = path.split(u'/', Qt::SkipEmptyParts);
    names.removeAll(QStringLiteral("."));
    return names;
}

QString folderOf(const QString &place)
{
    return place.left(std::max(place.lastIndexOf(u'/'), 1));
}

} // namespace

// Name by name, since the system knows nothing of what is planned.
QString PlannedDisk::place(const QString &path, LastName last) const
{
    constexpr int maxLinks = 40; // the system's own limit
    QStringList names
        = namesIn(QDir::isRelativePath(path) ? QDir::currentPath() + u'/' + path : path);
    QString here = QStringLiteral("/");
    for (int links = 0; !names.isEmpty() && links <= maxLinks;) {
        const QString name = names.takeFirst();
        const QString next
            = name == QLatin1String("..") ? folderOf(here) : QDir(here).filePath(name);
        const QString link = names.isEmpty() && last == Kept ? QString() : linkAt(next);
        if (!link.isEmpty()) {
            ++links;
            names = namesIn(link) + names;
            here = link.startsWith(u'/') ? QStringLiteral("/") : here;
        } else if (names.isEmpty() || isFolderAt(next)) {
            here = next;
        } else {
            return {};
        }
    }
    return names.isEmpty() ? here : QString();
}

QString PlannedDisk::linkAt(const QString &place) const
{
    if (m_files.contains(place) || m_newFolders.contains(place))
        return {};
    std::error_code failure;
    const auto link
        = std::filesystem::read_symlink(QFile::encodeName(place).toStdString(), failure);
    return failure ? QString() : QFile::decodeName(link.c_str());
}

bool PlannedDisk::isAt(const QString &place) const
{
    const auto planned = m_files.constFind(place);
    if (planned != m_files.constEnd())
        return planned->kind != File::Removed;
    const QFileInfo info(place);
    return m_newFolders.contains(place)
        || (!m_goneFolders.contains(place) && (info.exists() || info.isSymLink()));
}

bool PlannedDisk::isFolderAt(const QString &place) const
{
    const QFileInfo info(place);
    return m_newFolders.contains(place)
        || (!m_goneFolders.contains(place) && !m_files.contains(place) && info.isDir()
            && !info.isSymLink());
}

bool PlannedDisk::isWritableAt(const QString &place) const
{
    const QFileInfo info(place);
    return m_files.contains(place) || (info.isFile() && info.isWritable());
}

bool PlannedDisk::isBesideWritable(const QString &place) const
{
    const QString folder = folderOf(place);
    const QFileInfo info(folder);
    return m_newFolders.contains(folder)
        || (isFolderAt(folder) && info.isWritable() && info.isExecutable());
}

const PlannedDisk::File *PlannedDisk::file(const QString &path) const
{
    const auto it = m_files.constFind(placeOf(path));
    return it == m_files.constEnd() ? nullptr : &it.value();
}

bool PlannedDisk::isDeadLink(const QString &path) const
{
    return !linkAt(place(path, Kept)).isEmpty() && !exists(path);
}

bool PlannedDisk::mayMake(const QString &path) const
{
    const QString where = place(path, Kept);
    return !isAt(where) && isBesideWritable(where);
}

bool PlannedDisk::mayReplace(const QString &path) const
{
    return mayRewrite(path) && isBesideWritable(placeOf(path));
}

bool PlannedDisk::mayRewrite(const QString &path) const
{
    const QString where = placeOf(path);
    return isAt(where) ? isWritableAt(where) : isBesideWritable(where);
}

bool PlannedDisk::makeFolderOf(const QString &path)
{
    return makeFolder(QFileInfo(path).path());
}

// One after the other, as the system would: with ".." behind a folder that has to be made first,
// and without a link in the place of a folder.
bool PlannedDisk::makeFolder(const QString &path)
{
    if (path.size() > ViewControllers::maxPathLength)
        return false;
    for (int end = 0; end >= 0;) {
        end = path.indexOf(u'/', end + 1);
        const QString part = path.left(end);
        if (!isFolder(part) && mayMake(part))
            m_newFolders.insert(place(part, Kept));
        if (!isFolder(part))
            return false;
    }
    return true;
}

bool PlannedDisk::remove(const QString &path)
{
    const QString where = place(path, Kept);
    if (!isAt(where) || isFolderAt(where) || !isBesideWritable(where))
        return false;
    m_files.insert(where, {File::Removed, {}, {}});
    forget(where);
    return true;
}

bool PlannedDisk::copy(const QString &source, const QString &target)
{
    const bool isMade = mayMake(target);
    if (isMade)
        m_files.insert(place(target, Kept), {File::Copied, source, {}});
    return isMade;
}

bool PlannedDisk::replace(const QString &path, const QByteArray &bytes)
{
    const bool isWritten = mayReplace(path);
    if (isWritten)
        m_files.insert(placeOf(path), {File::Written, {}, bytes});
    return isWritten;
}

void PlannedDisk::removeFolderIfEmpty(const QString &path)
{
    const QString folder = ViewControllers::realFolder(QFileInfo(path).path());
    if (folder.isEmpty() || !isFolder(folder) || !isSurelyEmpty(placeOf(folder)))
        return;
    // What a link leads to is emptied, but stays, as does the link.
    if (linkAt(place(folder, Kept)).isEmpty())
        takeAway(placeOf(folder));
    else
        takeContentsAway(placeOf(folder));
}

void PlannedDisk::forget(const QString &place)
{
    const auto it = m_seen.find(folderOf(place));
    if (it != m_seen.end())
        it->remove(place);
}

// Looked at once for all files in it.
bool PlannedDisk::isSurelyEmpty(const QString &folder)
{
    if (!m_seen.contains(folder)) {
        QSet<QString> &seen = m_seen[folder];
        const auto see = [this, &seen](const QString &path) {
            if (isAt(path))
                seen.insert(path);
            return true;
        };
        if (!ViewControllers::lookInto(QDir(folder), see))
            seen.insert(folder); // so that it is never empty
    }
    return m_seen.value(folder).isEmpty();
}

// NOLINTNEXTLINE(misc-no-recursion): ends at the longest path that the system lists.
bool PlannedDisk::takeAway(const QString &folder)
{
    const bool isTaken = takeContentsAway(folder) && isBesideWritable(folder);
    if (!isTaken)
        return false;
    m_goneFolders.insert(folder);
    forget(folder);
    return true;
}

// NOLINTNEXTLINE(misc-no-recursion)
bool PlannedDisk::takeContentsAway(const QString &folder)
{
    constexpr auto everything
        = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    bool isEmpty = true;
    QDirIterator it(folder, everything);
    while (it.hasNext()) {
        const QString inside = it.next();
        const bool isTaken
            = !isAt(inside) || (isFolderAt(inside) ? takeAway(inside) : remove(inside));
        isEmpty = isEmpty && isTaken;
    }
    return isEmpty;
}

QStringList PlannedDisk::newFolders() const
{
    return sorted(QSet<QString>(m_newFolders).subtract(m_goneFolders));
}

QStringList PlannedDisk::goneFolders() const
{
    return sorted(QSet<QString>(m_goneFolders).subtract(m_newFolders));
}

} // namespace Quillmont::Utility::Doctor
