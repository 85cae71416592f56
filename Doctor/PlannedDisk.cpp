#include "Doctor/PlannedDisk.h"

#include "ViewControllers/Payload/Leftovers.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace Quillmont::Utility::Doctor {

namespace {

QStringList sorted(const QSet<QString> &paths)
{
    QStringList list = paths.values();
    std::sort(list.begin(), list.end());
    return list;
}

} // namespace

QString PlannedDisk::key(const QString &path)
{
    return QDir::cleanPath(path);
}

const PlannedDisk::File *PlannedDisk::file(const QString &path) const
{
    const auto it = m_files.constFind(key(path));
    return it == m_files.constEnd() ? nullptr : &it.value();
}

bool PlannedDisk::exists(const QString &path) const
{
    const File *planned = file(path);
    return planned ? planned->kind != File::Removed : QFileInfo::exists(path);
}

bool PlannedDisk::isFolder(const QString &path) const
{
    return m_newFolders.contains(path)
        || (!m_goneFolders.contains(path) && QFileInfo(path).isDir());
}

void PlannedDisk::makeFolderOf(const QString &path)
{
    QString folder = key(QFileInfo(path).absolutePath());
    while (!isFolder(folder) && folder.contains(u'/')) {
        // A folder that was removed before is created again.
        if (!m_goneFolders.remove(folder))
            m_newFolders.insert(folder);
        folder = folder.left(folder.lastIndexOf(u'/'));
    }
}

void PlannedDisk::remove(const QString &path)
{
    m_files.insert(key(path), {File::Removed, {}, {}});
    forget(key(path));
}

void PlannedDisk::copy(const QString &source, const QString &target)
{
    m_files.insert(key(target), {File::Copied, source, {}});
}

void PlannedDisk::write(const QString &path, const QByteArray &bytes)
{
    m_files.insert(key(path), {File::Written, {}, bytes});
}

void PlannedDisk::removeFolderIfEmpty(const QString &path)
{
    const QString folder = key(QFileInfo(path).dir().path());
    if (m_goneFolders.contains(folder) || !isSurelyEmpty(folder))
        return;
    constexpr auto everything
        = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QDirIterator it(folder, everything, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString inside = it.next();
        if (it.fileInfo().isDir() && !it.fileInfo().isSymLink())
            m_goneFolders.insert(inside);
        else
            remove(inside);
    }
    m_goneFolders.insert(folder);
    forget(folder);
}

bool PlannedDisk::isGone(const QString &path) const
{
    const File *planned = file(path);
    return m_goneFolders.contains(path) || (planned && planned->kind == File::Removed);
}

void PlannedDisk::forget(const QString &path)
{
    const auto it = m_seen.find(QFileInfo(path).path());
    if (it != m_seen.end())
        it->remove(path);
}

// Looked at once for all files in it.
bool PlannedDisk::isSurelyEmpty(const QString &folder)
{
    if (!m_seen.contains(folder)) {
        QSet<QString> &seen = m_seen[folder];
        const auto see = [this, &seen](const QString &path) {
            if (!isGone(path))
                seen.insert(path);
            return true;
        };
        if (!ViewControllers::lookInto(QDir(folder), see))
            seen.insert(folder); // so that it is never empty
    }
    return m_seen.value(folder).isEmpty();
}

QStringList PlannedDisk::newFolders() const
{
    return sorted(m_newFolders);
}

QStringList PlannedDisk::goneFolders() const
{
    return sorted(m_goneFolders);
}

} // namespace Quillmont::Utility::Doctor
