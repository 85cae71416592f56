#ifndef TESTS_ENDTOEND_COMPUTER_H
#define TESTS_ENDTOEND_COMPUTER_H

#include "tests/EndToEnd/Disk.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QJsonArray>
#include <QJsonObject>

namespace Tests {

class Display;

/// The plugin files of a catalogue entry: destination in the simulator to source in the payload.
QMap<QString, QString> pluginFiles(const QJsonObject &entry);

/// A user's computer: simulators "sims/<name>", their configuration files "Maker/<name>/dll.xml"
/// below the data root, and the program, of which it makes any number of complete runs.
class Computer
{
public:
    /// Runs the program on @p display, whose mouse answers boxes, or without a screen.
    explicit Computer(const Display *display = nullptr);

    Program &program() { return m_program; }

    const Program &program() const { return m_program; }

    /// @p path of disk() as an absolute path.
    QString absolute(const QString &path) const { return m_sandbox.path(path); }

    /// @p path below the data root as a path of disk().
    QString data(const QString &path) const;
    /// The simulator's folder, absolute.
    QString folder(const QString &simulator) const;
    /// The simulator's configuration file as a path of disk().
    QString configuration(const QString &simulator) const;

    /// A catalogue entry of @p type 0 or 1 that finds the simulator in its folder, if it exists.
    QJsonObject entry(const QString &simulator, int type) const;
    /// The same for an entry that finds nothing: only a record can name the simulator's folder.
    QJsonObject hiddenEntry(const QString &simulator, int type) const;
    /// Places the catalogue and the files to install beside the program.
    void setCatalogue(const QJsonArray &entries);

    /// Creates the simulator's folder, with another program's file in "Gauges".
    void addSimulator(const QString &simulator) const;
    /// Adds the plugin's files, each with the content "old".
    void addPlugin(const QString &simulator, int type) const;
    /// Writes the file at @p path of disk().
    void write(const QString &path, const QByteArray &content) const;

    /// What the program records for @p entry in the simulator's folder.
    QJsonObject recordFor(const QJsonObject &entry) const;
    void setRecords(const QJsonArray &records) const;
    QJsonArray records() const;

    /// Runs the program, answers its boxes with Ok and closes its window; returns the exit status.
    int run(const QStringList &arguments);

    /// The boxes of the last run, in order.
    const QVector<SeenWindow> &boxes() const { return m_boxes; }

    /// The same, "title: text" each.
    QStringList said() const;

    /// Whether the last run showed the window.
    bool showedTheWindow() const { return m_showedTheWindow; }

    /// The simulators, and everything below the data root; backups as in withFirstBackups().
    Disk disk() const;
    /// Adds to @p disk the files that installing copies into the simulator of @p entry.
    void putPlugin(Disk *disk, const QJsonObject &entry) const;
    /// Adds the launcher path file and these records to @p disk.
    void finish(Disk *disk, const QJsonArray &records) const;

private:
    void answer(const SeenWindow &window);
    void click(const SeenWindow &window);

    const Display *m_display;
    Sandbox m_sandbox;
    Program m_program;
    QVector<SeenWindow> m_boxes;
    bool m_showedTheWindow = false;
};

} // namespace Tests

#endif
