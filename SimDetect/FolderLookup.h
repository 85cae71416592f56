#ifndef SIMDETECT_FOLDERLOOKUP_H
#define SIMDETECT_FOLDERLOOKUP_H

#include <QHash>
#include <QString>
#include <QStringList>

namespace Quillmont::SimDetect {

/// Finds what a path means where its letter case may differ from the disk's. What it has seen of
/// a folder it remembers, so one serves for one look around.
class FolderLookup
{
public:
    /// @p path, cleaned and spelled as on disk; symbolic links stay as they are. A component that
    /// is not there is looked up ignoring letter case. Empty where nothing is found, and where
    /// @p path is not an absolute one.
    QString find(const QString &path);

    /// The same for @p relative inside @p folder, which is taken as it is.
    QString find(const QString &folder, const QString &relative);

    /// @p relative inside @p folder, spelled as on disk as far as it is there; the rest stays as it
    /// is written. Of several spellings that all differ from what is written, none is guessed.
    QString spelled(const QString &folder, const QString &relative);

    /// The names in @p folder, hidden ones too, sorted; none where it cannot be listed.
    QStringList names(const QString &folder);

    /// How many bytes of files may still be read: many files of a tolerable size are too much.
    qint64 &allowance() { return m_allowance; }

private:
    QString child(const QString &folder, const QString &name);
    QStringList spellings(const QString &folder, const QString &name);

    qint64 m_allowance = 24LL * 1024 * 1024;
    QHash<QString, QStringList> m_names;
    /// Of each folder: the names, by what they have in common in any letter case.
    QHash<QString, QHash<QString, QStringList>> m_spellings;
};

} // namespace Quillmont::SimDetect

#endif
