#ifndef SIMDETECT_ENVIRONMENT_H
#define SIMDETECT_ENVIRONMENT_H

#include <QMap>
#include <QString>

namespace Quillmont::SimDetect {

/// The computer that simulators are looked for on, as a value, so that each system's layout can
/// be tried on any other.
struct Environment
{
    enum System {
        Linux,
        MacOS
    };

    System system = Linux;
    QString home; ///< The user's home folder, absolute; empty where the user has none.
    QMap<QString, QString> variables; ///< Environment variables, name to value.
    QString root; ///< Put before the absolute well-known folders; empty in real use.

    /// The computer that the program runs on.
    static Environment current();

    /// @p relative inside the home folder, cleaned; empty where there is no home folder.
    QString inHome(const QString &relative) const;

    /// The well-known folder @p absolute on this computer, cleaned.
    QString inRoot(const QString &absolute) const;
};

} // namespace Quillmont::SimDetect

#endif
