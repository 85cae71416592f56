#include "Library/Helpers/EncodedText.h"

namespace Quillmont::Library::Helpers {

EncodedText::EncodedText(const QByteArray &bytes)
    : m_bytes(bytes)
    , m_encoding(bytes)
    , m_decoded(bytes, m_encoding)
{ }

QByteArray EncodedText::spliced(const TextSplices &splices) const
{
    const QVector<int> places = bytesAt(splices);
    if (places.isEmpty())
        return {};

    QByteArray bytes;
    QString expected;
    int byte = 0;
    int character = 0;
    for (int i = 0; i < splices.size(); ++i) {
        const QString piece = m_encoding.writable(splices.at(i).text);
        bytes += m_bytes.mid(byte, places.at(2 * i) - byte) + m_encoding.encoded(piece);
        expected += text().midRef(character, splices.at(i).begin - character);
        expected += piece;
        byte = places.at(2 * i + 1);
        character = splices.at(i).end;
    }
    bytes += m_bytes.mid(byte);
    expected += text().midRef(character);

    // Undecodable neighbours may join into a character, or a shift state reach into our piece.
    return DecodedText(bytes, m_encoding).text() == expected ? bytes : QByteArray();
}

/// Two for each splice, or none at all.
QVector<int> EncodedText::bytesAt(const TextSplices &splices) const
{
    QVector<int> characters;
    QVector<int> offsets;
    const auto add = [this, &characters, &offsets](int place) {
        const bool before = place < text().size() && text().at(place) < QChar(0x80);
        characters.append(before ? place : place - 1);
        offsets.append(before ? 0 : m_encoding.unit());
    };
    for (const TextSplice &splice : splices) {
        add(splice.begin);
        add(splice.end);
    }

    QVector<int> bytes = m_decoded.bytesOf(characters);
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] += offsets.at(i);
    return bytes;
}

} // namespace Quillmont::Library::Helpers
