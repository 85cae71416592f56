#include "Library/Xml/XmlCharacters.h"

#include "Library/Text/hasAny.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <array>
#include <utility>

namespace Quillmont::Library::Xml {

namespace {

bool isNameCharacter(QChar character)
{
    static constexpr std::array<std::pair<ushort, ushort>, 18> ranges{{{u'-', u'.'},
                                                                       {u'0', u':'},
                                                                       {u'A', u'Z'},
                                                                       {u'_', u'_'},
                                                                       {u'a', u'z'},
                                                                       {0x00b7, 0x00b7},
                                                                       {0x00c0, 0x00d6},
                                                                       {0x00d8, 0x00f6},
                                                                       {0x00f8, 0x037d},
                                                                       {0x037f, 0x1fff},
                                                                       {0x200c, 0x200d},
                                                                       {0x203f, 0x2040},
                                                                       {0x2070, 0x218f},
                                                                       {0x2c00, 0x2fef},
                                                                       {0x3001, 0xdb7f},
                                                                       {0xdc00, 0xdfff},
                                                                       {0xf900, 0xfdcf},
                                                                       {0xfdf0, 0xfffd}}};
    return std::any_of(ranges.cbegin(), ranges.cend(), [character](const auto &range) {
        return character >= QChar(range.first) && character <= QChar(range.second);
    });
}

// Below U+0080 the reader checks this itself.
bool mayComeFirst(QChar character)
{
    const ushort code = character.unicode();
    return code != 0x00b7 && (code < 0x0300 || code > 0x036f) && (code < 0x203f || code > 0x2040);
}

// Whether no document may hold that UTF-16 code unit. Without a branch, for hasAny().
bool isForbidden(ushort unit)
{
    const bool isSpace = (unit == u'\t') | (unit == u'\n') | (unit == u'\r');
    return (unit > 0xfffd) | ((unit < 0x20) & !isSpace);
}

bool hasReferenceByNumber(const QString &text)
{
    int place = text.indexOf(u'&');
    while (place >= 0 && text.midRef(place + 1, 1) != QLatin1String("#"))
        place = text.indexOf(u'&', place + 1);
    return place >= 0;
}

} // namespace

bool XmlCharacters::isName(const QStringRef &name)
{
    return !name.isEmpty() && mayComeFirst(name.at(0))
        && std::all_of(name.cbegin(), name.cend(), isNameCharacter);
}

// The reader takes any character above U+007F for part of a name.
bool XmlCharacters::fitDeclarations(const QStringRef &declarations)
{
    static const QRegularExpression texts(
        QStringLiteral("<!--.*?-->|<\\?.*?\\?>|\"[^\"]*\"|'[^']*'"),
        QRegularExpression::DotMatchesEverythingOption);
    const QString markup = declarations.toString().remove(texts);
    const auto isStray = [](QChar before, QChar character) {
        const bool isPlain = character < QChar(0x7f)
            && (character.isPrint() || QStringLiteral("\t\r\n").contains(character));
        return isNameCharacter(character) ? !mayComeFirst(character) && !isNameCharacter(before)
                                          : !isPlain;
    };
    return std::adjacent_find(markup.cbegin(), markup.cend(), isStray) == markup.cend();
}

// The reader accepts any Unicode white space around the digits, and a second "0x".
int XmlCharacters::indexOfMalformedReference(const QString &text)
{
    static const QRegularExpression malformed(QStringLiteral("&#(?!(?:[0-9]+|x[0-9a-fA-F]+);)"));
    static const QRegularExpression inMarkup(
        QStringLiteral("<!--.*?-->|<!\\[CDATA\\[.*?\\]\\]>|<\\?.*?\\?>|") + malformed.pattern(),
        QRegularExpression::DotMatchesEverythingOption);
    if (!hasReferenceByNumber(text) || !text.contains(malformed))
        return -1;
    auto it = inMarkup.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        if (match.capturedRef().startsWith(u'&'))
            return match.capturedStart();
    }
    return -1;
}

int XmlCharacters::indexOfForbidden(const QString &text)
{
    if (!Text::hasAny(text, isForbidden))
        return -1;
    const auto *const found = std::find_if(text.cbegin(), text.cend(), [](QChar character) {
        return isForbidden(character.unicode());
    });
    return static_cast<int>(found - text.cbegin());
}

} // namespace Quillmont::Library::Xml
