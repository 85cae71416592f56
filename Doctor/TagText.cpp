#include "Doctor/TagText.h"

#include "Doctor/TagReader.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>

namespace Quillmont::Utility::Doctor {

QString withoutSpecialMarkup(const QString &text)
{
    QString rest = text;
    TagReader reader(text);
    for (Tag tag = reader.next(); tag.kind != Tag::Nothing; tag = reader.next()) {
        if (tag.kind == Tag::Other || tag.kind == Tag::Declaration)
            std::fill(rest.begin() + tag.begin, rest.begin() + tag.end, QChar(u' '));
    }
    return rest;
}

int firstBareAmpersand(const QString &text)
{
    static const QRegularExpression ampersand(
        QStringLiteral(R"(&(?!#\d+;|#x[0-9A-Fa-f]+;|[A-Za-z_][\w.-]*;))"));
    const auto match = ampersand.match(text);
    return match.hasMatch() ? match.capturedStart() : -1;
}

QStringRef firstBareAttribute(const QString &text)
{
    static const QRegularExpression attribute(QStringLiteral(
        R"(^<[^\s>/]+(?:\s+[^\s=>"']+\s*=\s*(?:"[^"]*"|'[^']*'))*+\s+([^\s=>"']+)\s*=\s*[^"'\s])"));
    TagReader reader(text);
    for (Tag tag = reader.next(); tag.kind != Tag::Nothing; tag = reader.next()) {
        if (tag.kind != Tag::Start && tag.kind != Tag::SelfClosed)
            continue;
        const auto match = attribute.match(text.midRef(tag.begin, tag.end - tag.begin));
        if (match.hasMatch())
            return text.midRef(tag.begin + match.capturedStart(1), match.capturedLength(1));
    }
    return {};
}

} // namespace Quillmont::Utility::Doctor
