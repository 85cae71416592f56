#ifndef DOCTOR_ADVICE_H
#define DOCTOR_ADVICE_H

#include <QCoreApplication>
#include <QString>

class QJsonArray;

namespace Quillmont::Utility::Doctor {

/// What a user can do about a file.
class Advice
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::Advice)

public:
    /// About the file at @p path, which could not be read for the @p reason that the library gives.
    static QString onUnreadable(const QString &path, const QString &reason);

    /// About a damaged configuration file that has these @p backups.
    static QString onDamage(const QJsonArray &backups);

    /// About a web page in the place of a configuration file that has these @p backups.
    static QString onWebPage(const QJsonArray &backups);
};

} // namespace Quillmont::Utility::Doctor

#endif
