#include "tests/EndToEnd/Disk.h"

#include <QRegularExpression>
#include <QStringList>

namespace Tests {

void put(Disk *disk, const QString &path, const QByteArray &content)
{
    for (int slash = path.indexOf(u'/'); slash >= 0; slash = path.indexOf(u'/', slash + 1))
        disk->insert(path.left(slash + 1), {});
    disk->insert(path, content);
}

void takeOut(Disk *disk, const QString &path)
{
    for (const QString &candidate : disk->keys()) {
        if (candidate == path || (path.endsWith(u'/') && candidate.startsWith(path)))
            disk->remove(candidate);
    }
}

QString backupOf(const QString &file, const char *occasion)
{
    return file + QStringLiteral("_quillmont_orbwell_before_%1_*.bak").arg(QLatin1String(occasion));
}

Disk withFirstBackups(const Disk &disk)
{
    static const QRegularExpression time(QStringLiteral("_\\d{8}_\\d{6}\\.bak$"));
    Disk merged;
    for (auto it = disk.cbegin(); it != disk.cend(); ++it) {
        const QString path = QString(it.key()).replace(time, QStringLiteral("_*.bak"));
        if (!merged.contains(path))
            merged.insert(path, it.value());
    }
    return merged;
}

QString difference(const Disk &actual, const Disk &expected)
{
    QStringList lines;
    for (auto it = actual.cbegin(); it != actual.cend(); ++it) {
        if (!expected.contains(it.key()))
            lines.append(QLatin1String("unexpected ") + it.key());
        else if (expected.value(it.key()) != it.value())
            lines.append(it.key() + QLatin1String(" holds ") + QString::fromUtf8(it.value())
                         + QLatin1String(" instead of ")
                         + QString::fromUtf8(expected.value(it.key())));
    }
    for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
        if (!actual.contains(it.key()))
            lines.append(QLatin1String("missing ") + it.key());
    }
    return lines.join(u'\n');
}

} // namespace Tests
