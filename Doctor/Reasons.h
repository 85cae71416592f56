#ifndef DOCTOR_REASONS_H
#define DOCTOR_REASONS_H

#include <QCoreApplication>
#include <QString>

namespace Quillmont::Utility::Doctor {

/// Translates what detection and the library report in English.
class Reasons
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::Reasons)

public:
    /// Unchanged if it has no translation, such as "Steam".
    static QString translated(const QString &reason);

private:
    static QString translatedAlone(const QString &reason);
};

} // namespace Quillmont::Utility::Doctor

#endif
