#ifndef SIMDETECT_FOLDERLOOKUP_H
#define SIMDETECT_FOLDERLOOKUP_H

#include <QHash>
#include <QString>
#include <QStringList>

namespace Quillmont::SimDetect {

/// Resolves paths whose letter case may differ from the disk's. Caches folder listings: use a new
/// one for each detection run.
class FolderLookup
{
public:
    /// @p path, cleaned and spelled as on disk; symbolic links stay as they are. A component that
    /// does not exist is looked up ignoring letter case. Empty if nothing is found, or if @p path
    /// is not absolute.
    QString find(const QString &path);

    /// The same for @p relative inside @p folder, which is taken as it is.
    QString find(const QString &folder, const QString &relative);

    /// @p relative inside @p folder, spelled as on disk as far as it exists; the rest is unchanged,
    /// as is a component with several other spellings on disk.
    QString spelled(const QString &folder, const QString &relative);

    /// The names in @p folder, including hidden ones, sorted; none if it cannot be listed.
    QStringList names(const QString &folder);

    /// The remaining read budget of this run, in bytes: many files of an acceptable size may be too
    /// much together.
    qint64 &allowance() { return m_allowance; }

private:
    QString child(const QString &folder, const QString &name);
    QStringList spellings(const QString &folder, const QString &name);

    qint64 m_allowance = 24LL * 1024 * 1024;
    QHash<QString, QStringList> m_names;
    /// For each folder the names, by their case-folded form.
    QHash<QString, QHash<QString, QStringList>> m_spellings;
};

} // namespace Quillmont::SimDetect

#endif
