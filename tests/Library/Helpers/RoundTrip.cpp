#include "tests/Library/Helpers/RoundTrip.h"

#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "tests/Library/Helpers/XmlPromises.h"
#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <sys/stat.h>

namespace Tests {

namespace {

using Quillmont::Library::Helpers::XmlHelper;

bool insert(const QString &path)
{
    return XmlHelper(nullptr, path).insertValues(XmlPromises::model());
}

bool remove(const QString &path)
{
    return XmlHelper(nullptr, path).removeConfig(XmlPromises::model());
}

/// A value that changes whenever the file is written, even with the same bytes.
QByteArray identity(const QString &path)
{
    struct stat now = {};
    stat(QFile::encodeName(path).constData(), &now);
    return QByteArray::number(quint64(now.st_ino)) + ' '
        + QByteArray::number(QFileInfo(path).lastModified().toMSecsSinceEpoch());
}

} // namespace

RoundTrip::RoundTrip(const QString &path)
    : m_path(path)
{ }

QString RoundTrip::broken(const QByteArray &bytes)
{
    writeFile(m_path, bytes);
    LogCatcher log;
    m_wasAccepted = insert(m_path);
    if (m_wasAccepted)
        return brokenByEdit(bytes);

    static const QRegularExpression place(QStringLiteral(R"(, line \d+, column \d+: .)"));
    if (readFile(m_path) != bytes)
        return QStringLiteral("refused, but touched");
    if (log.debugLines().size() != 1 || !log.debugLines().constFirst().contains(place))
        return QStringLiteral("refused without one line that says where");
    return {};
}

QString RoundTrip::brokenByEdit(const QByteArray &bytes)
{
    const QByteArray edited = readFile(m_path);
    const QByteArray before = identity(m_path);
    if (!insert(m_path) || readFile(m_path) != edited || identity(m_path) != before)
        return QStringLiteral("the second insertion did something");
    return brokenByRemoval(bytes, edited);
}

QString RoundTrip::brokenByRemoval(const QByteArray &bytes, const QByteArray &edited)
{
    if (!remove(m_path))
        return QStringLiteral("the removal failed");
    const QByteArray after = readFile(m_path);
    const QByteArray before = identity(m_path);
    if (after != bytes && !XmlPromises::isOpenedRoot(bytes, after))
        return QStringLiteral("the removal did not bring back the bytes");
    if (after == bytes && !XmlPromises::isOnePieceMore(bytes, edited))
        return QStringLiteral("the insertion is not one piece");
    if (!remove(m_path) || readFile(m_path) != after || identity(m_path) != before)
        return QStringLiteral("the second removal did something");
    return {};
}

} // namespace Tests
