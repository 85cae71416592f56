#include "Controllers/SettingsFile.h"

#include "Controllers/ActionLog.h"
#include "Controllers/FileStamp.h"
#include "Controllers/IniReader.h"
#include "Controllers/PathEncoding.h"
#include "Controllers/SerialisedObject.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

#include <functional>
#include <memory>
#include <utility>

namespace Quillmont::Utility::Controllers {

namespace {

// Larger than any real file; one folder per simulator takes a few lines.
constexpr qint64 maxSize = 8LL * 1024 * 1024;

using Filter = std::function<bool(const IniReader &)>;

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// Returns the content of the file at @p path; on failure @p problem says why.
QByteArray content(const QString &path, QString *problem)
{
    // Qt would wait for a pipe's other end for ever.
    QFile file(path);
    if (!QFileInfo(path).isFile())
        *problem = QStringLiteral("not a regular file");
    else if (!file.open(QIODevice::ReadOnly))
        *problem = file.errorString();
    QByteArray bytes = file.isOpen() ? file.read(maxSize + 1) : QByteArray();
    if (bytes.size() > maxSize)
        *problem = QStringLiteral("too big");
    return bytes;
}

// What is wrong with the first wanted value that is worse than @p tolerable.
QString problemOf(IniReader *ini, SerialisedObject::Verdict tolerable, const Filter &isWanted)
{
    constexpr int maxKey = 200;
    SerialisedObject::Budget budget;
    while (ini->next()) {
        const QStringList texts = isWanted(*ini) ? ini->texts() : QStringList();
        for (const QString &text : texts) {
            const auto verdict = SerialisedObject::verdict(text, &budget);
            if (verdict > tolerable)
                return (verdict == SerialisedObject::Harmful
                            ? QStringLiteral("%1 holds an object that could crash any program")
                            : QStringLiteral("%1 holds an object that would be lost"))
                    .arg(ini->key().left(maxKey));
        }
    }
    return {};
}

// The result of checking a section and everything that Qt reads with it.
struct CheckedSection
{
    QByteArray stamp; // The file's; empty if the file may have changed since.
    QString section;
    QString problem;
    bool isUtf8 = false;
    std::unique_ptr<QSettings> settings; // While it exists, Qt caches the file.
};

// Cached, since each row of the window asks, and each check reads the whole file.
CheckedSection &lastCheck()
{
    static CheckedSection last;
    return last;
}

CheckedSection checked(const QString &path, const QString &section, const QByteArray &stamp)
{
    QString problem;
    const QByteArray bytes = content(path, &problem);
    const auto isWanted = [&section](const IniReader &ini) {
        return ini.isReadWith(section);
    };
    IniReader ini(bytes);
    if (problem.isEmpty())
        problem = problemOf(&ini, SerialisedObject::Lossy, isWanted);
    // A file that was not read, or has changed meanwhile, is not cached.
    if (bytes.isEmpty() || stamp.isEmpty() || stamp != fileStamp(path))
        return {{}, section, problem, ini.isUtf8(), nullptr};
    auto settings
        = problem.isEmpty() ? std::make_unique<QSettings>(path, QSettings::IniFormat) : nullptr;
    return {stamp, section, problem, ini.isUtf8(), std::move(settings)};
}

} // namespace

SettingsFile::SettingsFile(const QString &path)
    : m_path(path)
{ }

bool SettingsFile::canRead(const QString &key)
{
    if (!QFileInfo::exists(m_path))
        return false;
    const QString problem = problemToRead(key);
    // Called for each row in each scan, so the same problem is logged once.
    static QString lastProblem;
    if (!problem.isEmpty() && problem != lastProblem)
        logAction() << "settings not read:" << m_path << problem;
    lastProblem = problem;
    return problem.isEmpty();
}

bool SettingsFile::canWrite()
{
    const QString problem = problemToWrite();
    if (!problem.isEmpty())
        logLoss(problem);
    return problem.isEmpty();
}

void SettingsFile::prepare(QSettings *settings) const
{
    if (m_isUtf8)
        settings->setIniCodec("UTF-8");
}

void SettingsFile::logLoss(const QString &reason) const
{
    logAction() << "settings not saved:" << m_path << reason;
}

QString SettingsFile::problemToRead(const QString &key)
{
    if (!PathEncoding::survives(m_path))
        return QStringLiteral("their name is not valid text");
    const QString section = IniReader::sectionOf(key);
    const QByteArray stamp = fileStamp(m_path);
    CheckedSection &last = lastCheck();
    if (stamp.isEmpty() || stamp != last.stamp || section != last.section)
        last = checked(m_path, section, stamp);
    m_isUtf8 = last.isUtf8;
    return last.problem;
}

QString SettingsFile::problemToWrite()
{
    if (!PathEncoding::survives(m_path))
        return QStringLiteral("their name is not valid text");
    lastCheck() = {};
    QString problem;
    const bool isNew = !QFileInfo::exists(m_path);
    const QByteArray bytes = isNew ? QByteArray() : content(m_path, &problem);
    const auto isWanted = [](const IniReader &) {
        return true;
    };
    IniReader ini(bytes);
    m_isUtf8 = ini.isUtf8();
    if (problem.isEmpty())
        problem = problemOf(&ini, SerialisedObject::Whole, isWanted);
    return problem.isEmpty() ? problemToLock() : problem;
}

// QSettings waits for its lock without limit. A lock taken after this check is another program's
// normal, short use.
QString SettingsFile::problemToLock() const
{
    const QString name = m_path + QStringLiteral(".lock");
    // QLockFile removes a stale lock under the protection of another, FILE.lock.rmlock.
    for (QString lock = name; isThere(lock); lock += QStringLiteral(".rmlock"))
        if (!QFileInfo(lock).isFile())
            return QStringLiteral("%1 is not a regular file").arg(lock);

    static int patience = 10000;
    QLockFile lock(name);
    if (lock.tryLock(patience) || lock.error() != QLockFile::LockFailedError)
        return {};
    patience = 0;
    return QStringLiteral("another program has locked them");
}

} // namespace Quillmont::Utility::Controllers
