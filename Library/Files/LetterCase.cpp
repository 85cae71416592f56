#include "Library/Files/LetterCase.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace Quillmont::Library::Files {

namespace {

// More than any real disk has. The number can multiply with each folder of the path.
constexpr int maxCandidates = 100;

bool isStep(const QString &name)
{
    return name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..");
}

// Caches folder listings by the real path, so that each folder is listed once.
class Listings
{
public:
    /// The paths in @p folder, which ends in a slash, whose name is @p name in any letter case.
    QStringList find(const QString &folder, const QString &name)
    {
        if (isStep(name))
            return {folder + name};
        QStringList found;
        const QStringList all = names(folder);
        for (const QString &each : all) {
            if (each.compare(name, Qt::CaseInsensitive) == 0)
                found.append(folder + each);
        }
        return found;
    }

private:
    QStringList names(const QString &folder)
    {
        constexpr auto everything
            = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        const QString real = QFileInfo(folder).canonicalFilePath();
        if (!m_names.contains(real))
            m_names.insert(real, QDir(folder).entryList(everything, QDir::NoSort));
        return m_names.value(real);
    }

    QHash<QString, QStringList> m_names;
};

// Several paths can lead to one folder, through ".." or a link: the first is enough.
QStringList differentFolders(const QStringList &paths)
{
    QStringList different;
    QSet<QString> seen;
    for (const QString &path : paths) {
        const QString real = QFileInfo(path).canonicalFilePath();
        if (!seen.contains(real))
            different.append(path);
        seen.insert(real);
    }
    return different;
}

// The case of a path that leads out of the folder by ".." counts as far as it exists: on another
// disk, two folders may differ in letter case only.
QString fixedPart(const QString &folder, QStringList *names)
{
    QString fixed = folder;
    if (!names->contains(QLatin1String("..")))
        return fixed;
    while (names->size() > 1 && QFileInfo(fixed + names->constFirst()).isDir())
        fixed += names->takeFirst() + u'/';
    return fixed;
}

} // namespace

QStringList LetterCase::files(const QString &folder, const QString &relative)
{
    const int begin = folder.lastIndexOf(u'/') + 1;
    QStringList names = (folder.mid(begin) + relative).split(u'/');
    QStringList found{fixedPart(folder.left(begin), &names)};
    Listings listings;
    for (int i = 0; i < names.size() && found.size() <= maxCandidates; ++i) {
        QStringList next;
        const QStringList folders = i == 0 ? found : differentFolders(found);
        for (const QString &each : folders)
            next += listings.find(i == 0 ? each : each + u'/', names.at(i));
        found = next;
    }
    if (found.size() > maxCandidates)
        return {};

    QStringList files;
    for (const QString &each : qAsConst(found)) {
        if (each.startsWith(folder) && QFileInfo::exists(each) && !QFileInfo(each).isDir())
            files.append(each);
    }
    return files;
}

} // namespace Quillmont::Library::Files
