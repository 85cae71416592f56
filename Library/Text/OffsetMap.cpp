#include "Library/Text/OffsetMap.h"

#include <QTextCodec>
#include <QTextDecoder>

#include <algorithm>

namespace Quillmont::Library::Text {

namespace {

// Half a surrogate pair is as invalid as any other bytes that cannot be decoded.
void replaceLoneSurrogates(QString *text)
{
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
    : m_bytes(bytes)
    , m_encoding(encoding)
{
    decode();
    if (!m_text.isValidUtf16())
        replaceLoneSurrogates(&m_text);
}

void OffsetMap::decode()
{
    // A balance: fewer pieces decode faster, shorter ones are searched faster.
    constexpr int pieceSize = 512;
    const auto decoder = m_encoding.makeDecoder();
    m_text.reserve(m_bytes.size() / m_encoding.unit());
    for (int begin = m_encoding.markSize(), end = 0; begin < m_bytes.size(); begin = end) {
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

QVector<int> OffsetMap::byteOffsets(const QVector<int> &characters) const
{
    const auto decoder = m_encoding.makeDecoder();
    Offset here{m_encoding.markSize(), 0};
    const auto advance = [this, &decoder, &here](int byte) {
        const char *bytes = m_bytes.constData() + here.byte;
        here.character += decoder->toUnicode(bytes, byte - here.byte).size();
        here.byte = byte;
    };

    QVector<int> offsets;
    auto next = m_pieces.cbegin();
    for (const int character : characters) {
        for (; next != m_pieces.cend() && next->character <= character; ++next) {
            if (next->byte > here.byte)
                advance(next->byte);
        }
        while (here.character <= character && here.byte < m_bytes.size())
            advance(pieceEnd(here.byte, m_encoding.unit()));
        const int byte = here.byte - m_encoding.unit();
        const QByteArray expected = m_encoding.encoded(m_text.mid(character, 1));
        if (here.character != character + 1 || m_bytes.mid(byte, expected.size()) != expected)
            return {};
        offsets.append(byte);
    }
    return offsets;
}

} // namespace Quillmont::Library::Text
