#ifndef TESTS_SIMDETECT_DESCRIBEDCOMPUTER_H
#define TESTS_SIMDETECT_DESCRIBEDCOMPUTER_H

#include "SimDetect/Environment.h"
#include "tests/support/Sandbox.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Tests {

/// A computer of a test's own, on which simulators are looked for. What is on its disk is
/// described as text, one thing a line:
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
/// In every line $R is the root of everything, $H the home folder, $S the place of Steam, and $L
/// that of X-Plane's own lists; \n, \r, \t, \0, \\ and \xHH are the bytes that they are in C.
class DescribedComputer
{
public:
    explicit DescribedComputer(Quillmont::SimDetect::Environment::System system);

    /// Puts @p description on the disk; a line that makes no sense ends the test program.
    void make(const QString &description);

    /// @p text with $R, $H, $S and $L put in.
    QString expanded(const QString &text) const;

    /// Looks for simulators. The answer is one line for each, "CODE: folder", in code order, and
    /// behind them "ID: path" for each prefix that was asked for and is there.
    QString detect();

    /// What the last detection wrote to the log, debug lines first.
    const QStringList &log() const { return m_log; }

    /// The processor's time that the last detection took, in milliseconds: a busy machine does not
    /// make it longer.
    qint64 duration() const { return m_duration; }

    /// What is told of the computer.
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
