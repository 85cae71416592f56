#include "Library/Files/LetterCase.h"

#include <QDir>
#include <QFileInfo>

namespace Quillmont::Library::Files {

namespace {

bool isStep(const QString &name)
{
    return name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..");
}

QStringList children(const QString &folder, const QString &name)
{
    if (isStep(name))
        return {folder + name};
    constexpr auto everything
        = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QStringList found;
    const QStringList all = QDir(folder).entryList(everything, QDir::NoSort);
    for (const QString &each : all) {
        if (each.compare(name, Qt::CaseInsensitive) == 0)
            found.append(folder + each);
    }
    return found;
}

// Another disk may well hold two folders that differ in letter case only; a way that was found
// there is not left for the other one.
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
    for (int i = 0; i < names.size(); ++i) {
        QStringList next;
        for (const QString &each : qAsConst(found))
            next += children(i == 0 ? each : each + u'/', names.at(i));
        found = next;
    }

    QStringList files;
    for (const QString &each : qAsConst(found)) {
        if (each.startsWith(folder) && QFileInfo::exists(each) && !QFileInfo(each).isDir())
            files.append(each);
    }
    return files;
}

} // namespace Quillmont::Library::Files
