#ifndef TESTS_ENDTOEND_DISTURBEDCOMPUTER_H
#define TESTS_ENDTOEND_DISTURBEDCOMPUTER_H

#include "tests/EndToEnd/Computer.h"

namespace Tests {

/// A computer for fault injection. It has two simulators with a configuration each, three plugin
/// files in several folders, and other programs' files: "Kept" has other add-ons in its
/// configuration file, "Bare" has no such file yet. The record also has a third simulator.
class DisturbedComputer
{
public:
    /// The state before a run.
    enum Beginning {
        PartlyInstalled, ///< one plugin file of an older version in "Kept"
        Installed, ///< all plugin files of an older version, with their records
        OnlyRecorded, ///< the same, but only the record knows where the simulators are
        RecordedTwice ///< as Installed, and the record has another hard link
    };

    explicit DisturbedComputer(Beginning beginning);

    Computer &computer() { return m_computer; }

    const Computer &computer() const { return m_computer; }

    /// Restores the initial state.
    void reset();

    /// The damage that a run did, one line each: other programs' bytes changed or lost, a
    /// configuration or plugin file that is neither old nor new, an incomplete record.
    QStringList harm() const;
    /// The files that an interrupted run left but a complete run does not.
    QStringList leftovers() const;

    /// Everything except the backups; the records are sorted by name.
    Disk outcome() const;
    /// The outcome of a run from @p start, if an undisturbed one leads to @p usual: a simulator
    /// that is no longer recorded is not changed.
    Disk expectedAfter(const Disk &start, const Disk &usual) const;

    /// The simulator's plugin files as paths of disk().
    QStringList pluginFilesOf(const QString &simulator) const;
    /// Those of them that exist.
    QStringList remaining(const QString &simulator) const;
    /// Whether all of them exist in the version that the run installs.
    bool isWhole(const QString &simulator) const;

    /// The installation record as a path of disk().
    QString recordPath() const;

    static QStringList simulators();

private:
    QJsonObject entry(const QString &simulator) const;
    bool isWholeRecord(const QByteArray &text) const;
    QString configurationOf(const QString &path) const;
    /// The records, by simulator name.
    QMap<QString, QJsonObject> recordsOn(const Disk &disk) const;
    void putRecords(Disk *disk, const QMap<QString, QJsonObject> &records) const;
    /// Whether a run finds the simulator.
    bool isKnown(const QString &simulator, const Disk &disk) const;

    const Beginning m_beginning;
    Computer m_computer;
    QJsonArray m_catalogue;
    Disk m_before;
    /// The contents that a file of ours may have, by its path; other programs' files are not
    /// included.
    QMap<QString, QVector<QByteArray>> m_allowed;
};

} // namespace Tests

#endif
