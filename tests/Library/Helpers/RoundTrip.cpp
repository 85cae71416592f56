#include "tests/Library/Helpers/RoundTrip.h"

#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <sys/stat.h>

namespace Tests {

namespace {

using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Library::Models::XmlInsertionModel;

XmlInsertionModel *model()
{
    const auto value = [](const char *key, const char *text) {
        return QJsonObject{{QStringLiteral("key"), QLatin1String(key)},
                           {QStringLiteral("value"), QString::fromUtf8(text)}};
    };
    static XmlInsertionModel model(
        nullptr,
        {{QStringLiteral("parent"), QStringLiteral("Launch.Addon")},
         {QStringLiteral("values"),
          QJsonArray{value("Name", "Round & Trip \xc3\xbc"), value("Path", "a\\b.dll")}}});
    return &model;
}

bool insert(const QString &path)
{
    return XmlHelper(nullptr, path).insertValues(model());
}

bool remove(const QString &path)
{
    return XmlHelper(nullptr, path).removeConfig(model());
}

/// What changes whenever a file is written, even with the same bytes.
QByteArray identity(const QString &path)
{
    struct stat now = {};
    stat(QFile::encodeName(path).constData(), &now);
    return QByteArray::number(quint64(now.st_ino)) + ' '
        + QByteArray::number(QFileInfo(path).lastModified().toMSecsSinceEpoch());
}

/// Whether @p longer is @p shorter with one piece put into it.
bool isOnePieceMore(const QByteArray &shorter, const QByteArray &longer)
{
    const auto split
        = std::mismatch(shorter.cbegin(), shorter.cend(), longer.cbegin(), longer.cend());
    const auto rest = static_cast<int>(shorter.cend() - split.first);
    return longer.size() > shorter.size() && longer.right(rest) == shorter.right(rest);
}

/// @p bytes with the tag of a self-closed root opened, the one change that is not taken back.
/// Every other byte is as it was.
bool isOpenedRoot(const QByteArray &bytes, const QByteArray &after)
{
    const int slash = static_cast<int>(
        std::mismatch(bytes.cbegin(), bytes.cend(), after.cbegin(), after.cend()).first
        - bytes.cbegin());
    QByteArray tag = after.mid(slash, after.size() - bytes.size() + 2);
    const QByteArray rest = bytes.mid(slash + 2);
    tag.replace('\0', QByteArray());
    return after.endsWith(rest) && tag.startsWith("></") && tag.endsWith('>')
        && bytes.mid(slash).replace('\0', QByteArray()).startsWith("/>");
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
    if (after != bytes && !isOpenedRoot(bytes, after))
        return QStringLiteral("the removal did not bring back the bytes");
    if (after == bytes && !isOnePieceMore(bytes, edited))
        return QStringLiteral("the insertion is not one piece");
    if (!remove(m_path) || readFile(m_path) != after || identity(m_path) != before)
        return QStringLiteral("the second removal did something");
    return {};
}

} // namespace Tests
