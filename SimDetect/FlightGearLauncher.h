#ifndef SIMDETECT_FLIGHTGEARLAUNCHER_H
#define SIMDETECT_FLIGHTGEARLAUNCHER_H

#include "SimDetect/Candidate.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QVersionNumber>

namespace Quillmont::SimDetect {

class FolderLookup;

/// What the user has chosen in FlightGear's launcher, by the INI files that it writes. They are
/// read as text: anybody may write there, and a value can describe objects that must not be made.
class FlightGearLauncher
{
public:
    /// Reads what is in FlightGear's @p home, within the allowance of @p lookup; nothing where the
    /// user has none.
    FlightGearLauncher(const QString &home, FolderLookup &lookup);

    /// The data folders, that of the highest version first. A file that cannot be read is a
    /// candidate with its objection.
    const QVector<Candidate> &roots() const { return m_roots; }

    /// The folders that downloads go into, as they are written.
    const QStringList &downloadFolders() const { return m_downloadFolders; }

private:
    using Choice = QPair<QVersionNumber, QString>;

    void read(const QString &text);
    void readKey(const QString &key, const QString &value);
    void choose(const Choice &choice);

    QVector<Choice> m_chosen; ///< The highest version first, and no more than make sense.
    QVector<Candidate> m_roots;
    QStringList m_downloadFolders;
};

} // namespace Quillmont::SimDetect

#endif
