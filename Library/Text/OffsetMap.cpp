#include "Library/Text/OffsetMap.h"

#include "Library/Text/hasAny.h"

#include <QTextCodec>
#include <QTextDecoder>

#include <algorithm>
#include <iterator>
#include <memory>

namespace Quillmont::Library::Text {

namespace {

// Half a surrogate pair is as invalid as any other bytes that cannot be decoded.
void replaceLoneSurrogates(QString *text)
{
    if (!hasAny(*text, [](ushort unit) { return (unit & 0xf800) == 0xd800; }))
        return;
    for (int i = 0; i < text->size(); ++i) {
        const bool pair = text->at(i).isHighSurrogate() && i + 1 < text->size()
            && text->at(i + 1).isLowSurrogate();
        if (pair)
            ++i;
        else if (text->at(i).isSurrogate())
            (*text)[i] = QChar(QChar::ReplacementCharacter);
    }
}

} // namespace

OffsetMap::OffsetMap(const QByteArray &bytes, const XmlEncoding &encoding)
    : OffsetMap(bytes, encoding, encoding.markSize())
{ }

OffsetMap::OffsetMap(const QByteArray &bytes, const XmlEncoding &encoding, int begin)
    : m_bytes(bytes)
    , m_encoding(encoding)
{
    decode(begin);
    replaceLoneSurrogates(&m_text);
}

void OffsetMap::decode(int begin)
{
    // A balance: fewer pieces decode faster, shorter ones are searched faster.
    constexpr int pieceSize = 512;
    const auto decoder = m_encoding.makeDecoder();
    m_text.reserve((m_bytes.size() - begin) / m_encoding.unit());
    for (int end = 0; begin < m_bytes.size(); begin = end) {
        end = pieceEnd(begin, pieceSize);
        m_pieces.append({begin, m_text.size()});
        m_text += decoder->toUnicode(m_bytes.constData() + begin, end - begin);
    }
    if (decoder->needsMoreData())
        m_text += QChar(QChar::ReplacementCharacter);
}

int OffsetMap::pieceEnd(int begin, int size) const
{
    int end = std::min(begin + size, m_bytes.size());
    // After an ASCII byte a decoder is in its initial state again, even after invalid bytes.
    while (m_encoding.unit() == 1 && end < m_bytes.size() && (m_bytes.at(end - 1) & 0x80))
        ++end;
    return end;
}

// Goes through the bytes, and knows how many characters are behind it.
class OffsetMap::Search
{
public:
    explicit Search(const OffsetMap &map)
        : m_map(map)
    {
        decodeFrom({map.m_encoding.markSize(), 0});
    }

    // The byte behind @p character, or -1.
    int behind(int character)
    {
        const Offset start = m_map.startBefore(character + 1);
        if (start.byte > m_here.byte)
            decodeFrom(start);
        while (m_here.character <= character && m_here.byte < m_map.m_bytes.size())
            advance(m_map.pieceEnd(m_here.byte, m_map.m_encoding.unit() * stepTo(character)));
        return m_here.character == character + 1 ? m_here.byte : -1;
    }

private:
    // Not past it, though there are bytes that are several characters.
    int stepTo(int character) const
    {
        constexpr int reserve = 16;
        constexpr int most = 4;
        return std::max(1, (character - m_here.character - reserve) / most);
    }

    void decodeFrom(Offset place)
    {
        m_here = place;
        m_decoder = m_map.m_encoding.makeDecoder();
    }

    void advance(int byte)
    {
        const char *bytes = m_map.m_bytes.constData() + m_here.byte;
        m_here.character += m_decoder->toUnicode(bytes, byte - m_here.byte).size();
        m_here.byte = byte;
    }

    const OffsetMap &m_map;
    Offset m_here;
    std::unique_ptr<QTextDecoder> m_decoder;
};

QVector<int> OffsetMap::byteOffsets(const QVector<int> &characters) const
{
    Search search(*this);
    QVector<int> offsets;
    for (const int character : characters) {
        const int byte = search.behind(character) - m_encoding.unit();
        const QByteArray expected = m_encoding.encoded(m_text.mid(character, 1));
        if (byte < 0 || m_bytes.mid(byte, expected.size()) != expected)
            return {};
        offsets.append(byte);
    }
    return offsets;
}

OffsetMap::Offset OffsetMap::startBefore(int character) const
{
    if (!m_encoding.isStateless())
        return {m_encoding.markSize(), 0};
    auto next = std::lower_bound(m_pieces.cbegin(),
                                 m_pieces.cend(),
                                 character,
                                 [](Offset piece, int wanted) { return piece.character < wanted; });
    // A piece may begin in the middle of a surrogate pair, which is read otherwise there.
    while (next != m_pieces.cbegin() && m_text.at(std::prev(next)->character).isLowSurrogate())
        --next;
    return next == m_pieces.cbegin() ? Offset{m_encoding.markSize(), 0} : *std::prev(next);
}

} // namespace Quillmont::Library::Text
