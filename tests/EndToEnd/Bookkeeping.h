#ifndef TESTS_ENDTOEND_BOOKKEEPING_H
#define TESTS_ENDTOEND_BOOKKEEPING_H

#include "tests/EndToEnd/Disk.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

namespace Tests {

class Computer;

/// What ought to lie on a computer after each thing that its user does there: the program as a
/// few lines that know nothing of how it works. Every simulator of the catalogue is found.
class Bookkeeping
{
public:
    /// Starts from what @p computer holds and has the @p catalogue.
    Bookkeeping(const Computer &computer, const QJsonArray &catalogue);

    /// The names of the simulators, in the catalogue's order.
    const QStringList &simulators() const { return m_names; }

    bool isInstalled(const QString &simulator) const;
    void install(const QString &simulator);
    void uninstall(const QString &simulator);
    /// Installs wherever the plugin is missing; the names of those simulators, in order.
    QStringList installEverywhere();

    /// What somebody else does to a file.
    void change(const QString &path, const QByteArray &content);
    void lose(const QString &path);

    QByteArray content(const QString &path) const { return m_disk.value(path); }

    bool has(const QString &path) const { return m_disk.contains(path); }

    /// The simulator's plugin files and its configuration file (or nothing) as paths of disk().
    QStringList pluginFilesOf(const QString &simulator) const;
    QString configurationOf(const QString &simulator) const;

    /// What lies there now, with the first backup of each set.
    const Disk &disk() const { return m_disk; }

    /// By backupOf(): what should have been kept each time, as far as the clock let it.
    const QMap<QString, QVector<QByteArray>> &backups() const { return m_backups; }

private:
    QJsonObject entry(const QString &simulator) const;
    void backUp(const QString &file, const char *occasion);
    void addEntry(const QString &simulator);
    void removeEntry(const QString &simulator);
    void removeIfEmpty(const QString &folder);
    void record(const QString &simulator, bool installed);

    const Computer &m_computer;
    QJsonArray m_catalogue;
    QStringList m_names;
    Disk m_disk;
    QMap<QString, QVector<QByteArray>> m_backups;
};

} // namespace Tests

#endif
