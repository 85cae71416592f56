#ifndef TESTS_ENDTOEND_DISTURBEDCOMPUTER_H
#define TESTS_ENDTOEND_DISTURBEDCOMPUTER_H

#include "tests/EndToEnd/Computer.h"

namespace Tests {

/// A computer on which runs go wrong. It has two simulators with a configuration each, three
/// plugin files in several folders, and files of others all around: "Kept" has other add-ons in
/// its configuration file, "Bare" has no such file yet. The record has another simulator, too.
class DisturbedComputer
{
public:
    /// What lies there before a run.
    enum Beginning {
        PartlyInstalled, ///< one plugin file of an older version in "Kept"
        Installed, ///< all plugin files of an older version, with their records
        OnlyRecorded, ///< the same, and nothing but the record knows where the simulators are
        RecordedTwice ///< as Installed, and the record has a second name somewhere else
    };

    explicit DisturbedComputer(Beginning beginning);

    Computer &computer() { return m_computer; }

    const Computer &computer() const { return m_computer; }

    /// Makes everything as it was at the beginning.
    void reset();

    /// What a run did that no run may do, a line each: bytes of others changed or lost, a
    /// configuration or plugin file that is neither old nor new, a record that is not whole.
    QStringList harm() const;
    /// The files that a run left and no whole run leaves.
    QStringList leftovers() const;

    /// All but the backups, the records in the order of their names.
    Disk outcome() const;
    /// What a run leads to that starts from @p start, if an undisturbed one leads to @p usual:
    /// a simulator that the record no longer stands for stays as it is.
    Disk expectedAfter(const Disk &start, const Disk &usual) const;

    /// The simulator's plugin files as paths of disk().
    QStringList pluginFilesOf(const QString &simulator) const;
    /// Those of them that are there.
    QStringList remaining(const QString &simulator) const;
    /// Whether all of them are there as the run brings them.
    bool isWhole(const QString &simulator) const;

    /// The installation record as a path of disk().
    QString recordPath() const;

    static QStringList simulators();

private:
    QJsonObject entry(const QString &simulator) const;
    bool isWholeRecord(const QByteArray &text) const;
    QString configurationOf(const QString &path) const;
    /// By the simulators' names.
    QMap<QString, QJsonObject> recordsOn(const Disk &disk) const;
    void putRecords(Disk *disk, const QMap<QString, QJsonObject> &records) const;
    /// Whether a run finds the simulator.
    bool isKnown(const QString &simulator, const Disk &disk) const;

    const Beginning m_beginning;
    Computer m_computer;
    QJsonArray m_catalogue;
    Disk m_before;
    /// What a file of ours may hold, by its path; a foreign file is not in here.
    QMap<QString, QVector<QByteArray>> m_allowed;
};

} // namespace Tests

#endif
