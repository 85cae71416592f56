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
    int byte = 0;
    for (int i = 0; i < splices.size(); ++i) {
        bytes += m_bytes.mid(byte, places.at(2 * i) - byte);
        bytes += m_encoding.encoded(m_encoding.writable(splices.at(i).text));
        byte = places.at(2 * i + 1);
    }
    bytes += m_bytes.mid(byte);
    return reads(bytes, splices) ? bytes : QByteArray();
}

// Undecodable neighbours may join into a character, or a shift state reach into what is new.
bool EncodedText::reads(const QByteArray &bytes, const TextSplices &splices) const
{
    const DecodedText after(bytes, m_encoding);
    int here = 0;
    int there = 0;
    const auto goesOn = [&after, &there](const QStringRef &expected) {
        const bool isSame = after.text().midRef(there, expected.size()) == expected;
        there += expected.size();
        return isSame;
    };
    for (const TextSplice &splice : splices) {
        const QString piece = m_encoding.writable(splice.text);
        if (!goesOn(text().midRef(here, splice.begin - here)) || !goesOn(QStringRef(&piece)))
            return false;
        here = splice.end;
    }
    return goesOn(text().midRef(here)) && there == after.text().size();
}

// Two for each splice, or none at all.
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
