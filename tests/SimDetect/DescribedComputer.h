#ifndef TESTS_SIMDETECT_DESCRIBEDCOMPUTER_H
#define TESTS_SIMDETECT_DESCRIBEDCOMPUTER_H

#include "SimDetect/Environment.h"
#include "tests/support/Sandbox.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Tests {

/// A test's own computer, on which to detect simulators. Its disk is described as text, one item
/// per line:
///
///     dir PATH
///     file PATH = CONTENT
///     link PATH -> TARGET
///     fifo PATH
///     xplane PATH                 a folder that holds what an X-Plane folder must
///     libraries ROOT = PATH, ...  a Steam root's list of libraries
///     game LIBRARY ID NAME        a game that Steam says is installed there
///     variable NAME = VALUE
///     prefix ID = PATH            asks where PATH is in the Proton prefix of that game
///
/// In every line $R is the root of everything, $H the home folder, $S Steam's folder, and $L the
/// folder of X-Plane's lists; \n, \r, \t, \0, \\ and \xHH are escapes as in C.
class DescribedComputer
{
public:
    explicit DescribedComputer(Quillmont::SimDetect::Environment::System system);

    /// Creates the files in @p description; an invalid line ends the test program.
    void make(const QString &description);

    /// @p text with $R, $H, $S and $L replaced.
    QString expanded(const QString &text) const;

    /// Detects simulators. Returns one line for each, "CODE: folder", in code order, followed by
    /// "ID: path" for each requested prefix that exists.
    QString detect();

    /// The log of the last detection, debug lines first.
    const QStringList &log() const { return m_log; }

    /// The processor time of the last detection, in milliseconds, which does not depend on how busy
    /// the machine is.
    qint64 duration() const { return m_duration; }

    /// The description of the computer for detection.
    Quillmont::SimDetect::Environment environment;

private:
    void makeOne(const QString &what, const QString &path, const QString &rest);
    void makeGame(const QString &library, const QString &id, const QString &name);
    void makeLibraries(const QString &root, const QStringList &libraries);
    void makeXPlane(const QString &path) const;

    Sandbox m_sandbox;
    QVector<QPair<qint64, QString>> m_asked;
    QStringList m_log;
    qint64 m_duration = 0;
};

} // namespace Tests

#endif
