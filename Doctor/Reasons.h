#ifndef DOCTOR_REASONS_H
#define DOCTOR_REASONS_H

#include <QCoreApplication>
#include <QString>

namespace Quillmont::Utility::Doctor {

/// What detection and the library say in English, in the user's language.
class Reasons
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::Reasons)

public:
    /// As it is where there is no other way to say it, as with "Steam".
    static QString translated(const QString &reason);

private:
    static QString translatedAlone(const QString &reason);
};

} // namespace Quillmont::Utility::Doctor

#endif
