#include "Library/Xml/XmlSpace.h"

#include <algorithm>

namespace Quillmont::Library::Xml::XmlSpace {

namespace {

bool isSpace(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

bool isLineEnd(QChar character)
{
    return character == u'\n' || character == u'\r';
}

// Where the last line end between @p begin and @p place begins, or -1.
int lastLineEnd(const QString &text, int begin, int place)
{
    int at = place - 1;
    while (at >= begin && !isLineEnd(text.at(at)))
        --at;
    if (at < begin)
        return -1;
    const bool isPair = at > begin && text.at(at) == u'\n' && text.at(at - 1) == u'\r';
    return isPair ? at - 1 : at;
}

} // namespace

int begin(const QString &text, int place)
{
    while (place > 0 && isSpace(text.at(place - 1)))
        --place;
    return place;
}

int end(const QString &text, int place)
{
    while (place < text.size() && isSpace(text.at(place)))
        ++place;
    return place;
}

QString trimmed(const QString &text)
{
    const int first = end(text, 0);
    return text.mid(first, std::max(begin(text, text.size()) - first, 0));
}

QString lineBefore(const QString &text, int place)
{
    const int space = begin(text, place);
    const int line = std::max(space, lastLineEnd(text, space, place));
    return text.mid(line, place - line);
}

bool hasLineEnd(const QStringRef &text)
{
    return std::any_of(text.cbegin(), text.cend(), isLineEnd);
}

bool beginsLine(const QString &text, int place)
{
    return lastLineEnd(text, begin(text, place), place) >= 0;
}

QString lineEndBefore(const QString &text, int place)
{
    const int at = lastLineEnd(text, 0, place);
    if (at < 0)
        return {};
    const bool isPair = text.at(at) == u'\r' && at + 1 < place && text.at(at + 1) == u'\n';
    return text.mid(at, isPair ? 2 : 1);
}

QString indent(const QString &line)
{
    const auto *const end = std::find_if_not(line.cbegin(), line.cend(), isLineEnd);
    return line.mid(static_cast<int>(end - line.cbegin()));
}

} // namespace Quillmont::Library::Xml::XmlSpace
