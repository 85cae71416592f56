#ifndef SIMDETECT_ENVIRONMENT_H
#define SIMDETECT_ENVIRONMENT_H

#include <QMap>
#include <QString>

namespace Quillmont::SimDetect {

/// Describes the computer on which to look for simulators, so that any system's layout can be
/// tested on any other.
struct Environment
{
    enum System {
        Linux,
        MacOS
    };

    System system = Linux;
    QString home; ///< The user's home folder, absolute; empty where the user has none.
    QMap<QString, QString> variables; ///< Environment variables, name to value.
    QString root; ///< Prefix of the absolute well-known folders; empty except in tests.

    /// The computer that the program runs on.
    static Environment current();

    /// @p relative inside the home folder, cleaned; empty if there is no home folder.
    QString inHome(const QString &relative) const;

    /// The well-known folder @p absolute on this computer, cleaned.
    QString inRoot(const QString &absolute) const;
};

} // namespace Quillmont::SimDetect

#endif
