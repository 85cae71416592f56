#include "Doctor/TextPlaces.h"

#include "Library/Text/XmlSource.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>

using Quillmont::Library::Text::XmlSource;

namespace Quillmont::Utility::Doctor {

namespace {

int lineBegin(const QString &text, int place)
{
    while (place > 0 && text.at(place - 1) != u'\n' && text.at(place - 1) != u'\r')
        --place;
    return place;
}

} // namespace

int lineAt(const QString &text, int place)
{
    int line = 1;
    for (int i = 0; i < place; ++i) {
        const bool isPair = text.at(i) == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n';
        line += (text.at(i) == u'\n' || text.at(i) == u'\r') && !isPair ? 1 : 0;
    }
    return line;
}

int columnAt(const QString &text, int place)
{
    return place - lineBegin(text, place) + 1;
}

QString wholeLineAt(const QString &text, int place)
{
    static const QRegularExpression end(QStringLiteral("[\r\n]"));
    const int begin = lineBegin(text, place);
    const int length = text.indexOf(end, begin) - begin;
    return text.mid(begin, length < 0 ? -1 : length);
}

// The library counts line feeds.
int placeIn(const QString &problem, const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^line (\\d+), column (\\d+):"));
    const auto match = form.match(problem);
    int place = 0;
    for (int line = 1; line < match.captured(1).toInt() && place < text.size(); ++line) {
        const int end = text.indexOf(u'\n', place);
        place = end < 0 ? text.size() : end + 1;
    }
    return std::clamp(place + match.captured(2).toInt() - 1, 0, std::max(0, text.size() - 1));
}

// The character that stands for them in the text may also be one that the file really holds.
int firstInvalid(const XmlSource &source)
{
    const QString &text = source.text();
    int byte = source.encoding().markSize();
    int begin = 0;
    for (int place = text.indexOf(QChar::ReplacementCharacter); place >= 0;
         place = text.indexOf(QChar::ReplacementCharacter, begin)) {
        const QByteArray expected = source.encoding().encoded(text.mid(begin, place + 1 - begin));
        if (source.bytes().mid(byte, expected.size()) != expected)
            return place;
        byte += expected.size();
        begin = place + 1;
    }
    return -1;
}

} // namespace Quillmont::Utility::Doctor
