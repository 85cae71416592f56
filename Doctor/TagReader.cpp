#include "Doctor/TagReader.h"

#include <QRegularExpression>

#include <algorithm>

namespace Quillmont::Utility::Doctor {

namespace {

bool beginsName(QChar character)
{
    return character.isLetter() || character == u'_' || character == u':';
}

bool endsName(QChar character)
{
    return character.isSpace() || character == u'>' || character == u'/' || character == u'<';
}

} // namespace

Tag TagReader::next()
{
    const int begin = m_text.indexOf(u'<', m_place);
    if (begin < 0)
        return {};
    const QChar second = m_text.midRef(begin + 1, 1).isEmpty() ? QChar() : m_text.at(begin + 1);
    Tag tag = second == u'!' || second == u'?' ? special(begin) : element(begin);
    m_place = std::max(tag.end, begin + 1);
    return tag;
}

// A comment, CDATA section or the like, which may contain tags.
Tag TagReader::special(int begin) const
{
    const auto rest = m_text.midRef(begin);
    const char *mark = rest.startsWith(QLatin1String("<!--")) ? "-->"
        : rest.startsWith(QLatin1String("<![CDATA["))         ? "]]>"
        : rest.startsWith(QLatin1String("<?"))                ? "?>"
                                                              : ">";
    const bool isDeclaration = rest.startsWith(QLatin1String("<?xml "));
    const int end = m_text.indexOf(QLatin1String(mark), begin + 2);
    if (end < 0)
        return {Tag::Unfinished, {}, begin, m_text.size()};
    return {isDeclaration ? Tag::Declaration : Tag::Other,
            {},
            begin,
            end + static_cast<int>(qstrlen(mark))};
}

Tag TagReader::element(int begin) const
{
    int name = begin + 1;
    const auto at = [this](int place) {
        return place < m_text.size() ? m_text.at(place) : QChar();
    };
    const bool isEnd = at(name) == u'/' || at(name) == u'\\';
    bool isWell = at(name) != u'\\';
    name += isEnd ? 1 : 0;
    for (; at(name).isSpace(); ++name)
        isWell = false;
    if (!beginsName(at(name)))
        return {Tag::Malformed, {}, begin, begin + 1};

    int nameEnd = name;
    while (nameEnd < m_text.size() && !endsName(m_text.at(nameEnd)))
        ++nameEnd;
    const QString text = m_text.mid(name, nameEnd - name);
    bool isInQuotation = false;
    const int end = closing(nameEnd, &isInQuotation);
    if (end >= m_text.size() || m_text.at(end) != u'>')
        return {Tag::Unfinished, text, begin, end, isInQuotation};
    const Tag::Kind kind = !isWell   ? Tag::Malformed
        : isEnd                      ? Tag::End
        : m_text.at(end - 1) == u'/' ? Tag::SelfClosed
                                     : Tag::Start;
    return {kind, text, begin, end + 1};
}

// The ">" that ends a tag, a "<" that should not be in it, or the end of the text.
int TagReader::closing(int begin, bool *isInQuotation) const
{
    QChar quote;
    int place = begin;
    for (; place < m_text.size(); ++place) {
        const QChar character = m_text.at(place);
        if (!quote.isNull())
            quote = character == quote ? QChar() : quote;
        else if (character == u'"' || character == u'\'')
            quote = character;
        else if (character == u'>' || character == u'<')
            break;
        if (character == u'<')
            break;
    }
    *isInQuotation = !quote.isNull();
    return place;
}

bool isWebPage(const QString &text)
{
    static const QRegularExpression type(QStringLiteral("^<!doctype\\s+html\\b"),
                                         QRegularExpression::CaseInsensitiveOption);
    TagReader reader(text);
    Tag tag = reader.next();
    while (tag.kind == Tag::Declaration || tag.kind == Tag::Other) {
        if (type.match(text.midRef(tag.begin, tag.end - tag.begin)).hasMatch())
            return true;
        tag = reader.next();
    }
    return tag.name.compare(QLatin1String("html"), Qt::CaseInsensitive) == 0;
}

} // namespace Quillmont::Utility::Doctor
