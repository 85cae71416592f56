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

/// The user's choices in FlightGear's launcher, from its INI files. They are read as text: a value
/// can describe serialised objects that must not be created.
class FlightGearLauncher
{
public:
    /// Reads the files in FlightGear's @p home, within the read budget of @p lookup; nothing if
    /// @p home is empty.
    FlightGearLauncher(const QString &home, FolderLookup &lookup);

    /// The data folders, the highest version first. A file that cannot be read is listed as a
    /// candidate with its objection.
    const QVector<Candidate> &roots() const { return m_roots; }

    /// The download folders, as they are written.
    const QStringList &downloadFolders() const { return m_downloadFolders; }

private:
    using Choice = QPair<QVersionNumber, QString>;

    void read(const QString &text);
    void readKey(const QString &key, const QString &value);
    void choose(const Choice &choice);

    QVector<Choice> m_chosen; ///< The highest version first, up to a maximum.
    QVector<Candidate> m_roots;
    QStringList m_downloadFolders;
};

} // namespace Quillmont::SimDetect

#endif
