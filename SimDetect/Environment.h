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
    QString home; ///< The user's home folder, absolute.
    QMap<QString, QString> variables; ///< Environment variables, name to value.
    QString root; ///< Put before the absolute well-known folders; empty in real use.

    /// The computer that the program runs on.
    static Environment current();
};

} // namespace Quillmont::SimDetect

#endif
