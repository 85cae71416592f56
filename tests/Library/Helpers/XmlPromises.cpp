#include "tests/Library/Helpers/XmlPromises.h"

#include "Library/Models/XmlInsertionModel.h"
#include "Library/Xml/editedXml.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace Tests {

namespace {

using Quillmont::Library::Models::XmlInsertionModel;
using Quillmont::Library::Xml::withEntry;
using Quillmont::Library::Xml::withoutEntry;

QJsonObject value(const char *key, const char *text)
{
    return {{QStringLiteral("key"), QLatin1String(key)},
            {QStringLiteral("value"), QString::fromUtf8(text)}};
}

} // namespace

XmlInsertionModel *XmlPromises::model()
{
    static XmlInsertionModel model(
        nullptr,
        {{QStringLiteral("parent"), QStringLiteral("Launch.Addon")},
         {QStringLiteral("values"),
          QJsonArray{value("Name", "Round & Trip \xc3\xbc"), value("Path", "a\\b.dll")}}});
    return &model;
}

bool XmlPromises::isOnePieceMore(const QByteArray &shorter, const QByteArray &longer)
{
    if (longer.size() <= shorter.size())
        return false;
    const auto split = std::mismatch(shorter.cbegin(), shorter.cend(), longer.cbegin());
    const auto rest = static_cast<int>(shorter.cend() - split.first);
    return longer.right(rest) == shorter.right(rest);
}

bool XmlPromises::isOpenedRoot(const QByteArray &before, const QByteArray &after)
{
    if (after.size() <= before.size())
        return false;
    const auto split = std::mismatch(before.cbegin(), before.cend(), after.cbegin());
    const auto place = static_cast<int>(split.first - before.cbegin());
    // UTF-16 and UTF-32 contain zero bytes.
    QByteArray tag = before.mid(place, 8).replace('\0', QByteArray());
    QByteArray tags
        = after.mid(place, after.size() - before.size() + 8).replace('\0', QByteArray());
    const int rest = before.size() - before.indexOf('>', place) - 1;
    return tag.startsWith("/>") && tags.startsWith("></")
        && after.right(rest) == before.right(rest);
}

QString XmlPromises::broken(const QByteArray &bytes, bool *isAccepted)
{
    QString problem;
    const QByteArray edited = withEntry(bytes, *model(), &problem);
    *isAccepted = problem.isEmpty();
    if (!*isAccepted)
        return edited == bytes ? QString() : QStringLiteral("refused, but touched");
    if (withEntry(edited, *model(), &problem) != edited || !problem.isEmpty())
        return QStringLiteral("the second insertion does something: ") + problem;

    const QByteArray removed = withoutEntry(edited, *model(), &problem);
    if (!problem.isEmpty())
        return QStringLiteral("the entry cannot be removed: ") + problem;
    if (withoutEntry(removed, *model(), &problem) != removed || !problem.isEmpty())
        return QStringLiteral("the second removal does something: ") + problem;

    const QByteArray without = withoutEntry(bytes, *model(), &problem);
    if (!problem.isEmpty())
        return QStringLiteral("an older entry cannot be removed: ") + problem;
    if (removed != without && !isOpenedRoot(without, removed))
        return QStringLiteral("the removal does not bring back the bytes");
    if (without == bytes && removed == bytes && !isOnePieceMore(bytes, edited))
        return QStringLiteral("the insertion is not one piece");
    return {};
}

} // namespace Tests
