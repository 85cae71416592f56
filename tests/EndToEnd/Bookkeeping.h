#ifndef TESTS_ENDTOEND_BOOKKEEPING_H
#define TESTS_ENDTOEND_BOOKKEEPING_H

#include "tests/EndToEnd/Disk.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

namespace Tests {

class Computer;

/// A model of the program: which files should be on a computer after each action of its user,
/// independent of the implementation. Every simulator of the catalogue is found.
class Bookkeeping
{
public:
    /// Starts from the files on @p computer, with this @p catalogue.
    Bookkeeping(const Computer &computer, const QJsonArray &catalogue);

    /// The names of the simulators, in the catalogue's order.
    const QStringList &simulators() const { return m_names; }

    bool isInstalled(const QString &simulator) const;
    void install(const QString &simulator);
    void uninstall(const QString &simulator);
    /// Installs wherever the plugin is missing; returns the names of those simulators, in order.
    QStringList installEverywhere();

    /// Applies another program's change to a file.
    void change(const QString &path, const QByteArray &content);
    void lose(const QString &path);

    QByteArray content(const QString &path) const { return m_disk.value(path); }

    bool has(const QString &path) const { return m_disk.contains(path); }

    /// The simulator's plugin files and its configuration file (or nothing) as paths of disk().
    QStringList pluginFilesOf(const QString &simulator) const;
    QString configurationOf(const QString &simulator) const;

    /// The files that should be there now, with the first backup of each set.
    const Disk &disk() const { return m_disk; }

    /// By backupOf(): the contents that were backed up; backups within the same second fail.
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
