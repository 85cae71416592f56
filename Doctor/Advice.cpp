#include "Doctor/Advice.h"

#include "Doctor/Backups.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include <cerrno>

#include <unistd.h>

namespace Quillmont::Utility::Doctor {

namespace {

// Of the newest one that helps; empty without any.
QString goodBackup(const QJsonArray &backups)
{
    const int index = newestGood(backups);
    return index < 0 ? QString() : timeOf(backups.at(index).toObject());
}

} // namespace

QString Advice::onUnreadable(const QString &path, const QString &reason)
{
    if (::access(QFile::encodeName(path).constData(), R_OK) != 0 && errno == EACCES)
        return tr("Give yourself the right to read it.");
    return reason == QLatin1String("too big") ? tr("Move it away, or make it smaller by hand.")
                                              : tr("Move it away.");
}

QString Advice::onDamage(const QJsonArray &backups)
{
    const QString time = goodBackup(backups);
    if (time.isEmpty())
        return tr("Mend the file by hand; until then nothing is changed in it, and the simulator "
                  "may load no add-on at all.");
    return tr("Put the backup of %1 back, or mend the file by hand; until then nothing is changed "
              "in it, and the simulator may load no add-on at all.")
        .arg(time);
}

QString Advice::onWebPage(const QJsonArray &backups)
{
    const QString time = goodBackup(backups);
    return time.isEmpty() ? tr("Move it away; until then the simulator may load no add-on at all.")
                          : tr("Put the backup of %1 back; until then the simulator may load no "
                               "add-on at all.")
                                .arg(time);
}

} // namespace Quillmont::Utility::Doctor
