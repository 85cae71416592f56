#include "Library/Text/XmlSource.h"

namespace Quillmont::Library::Text {

XmlSource::XmlSource(const QByteArray &bytes)
    : m_bytes(bytes)
    , m_encoding(bytes)
    , m_offsets(bytes, m_encoding)
{ }

QByteArray XmlSource::spliced(const QVector<Splice> &splices) const
{
    QVector<Splice> writable = splices;
    for (Splice &splice : writable)
        splice.text = m_encoding.writable(splice.text);
    const QVector<int> offsets = byteOffsets(splices);
    if (offsets.isEmpty())
        return {};
    const QByteArray bytes = joined(writable, offsets);
    return reads(bytes, writable) ? bytes : QByteArray();
}

// The bytes with @p splices, whose texts are writable, between @p offsets.
QByteArray XmlSource::joined(const QVector<Splice> &splices, const QVector<int> &offsets) const
{
    QByteArray bytes;
    int byte = 0;
    for (int i = 0; i < splices.size(); ++i) {
        const QByteArray piece = m_encoding.encoded(splices.at(i).text);
        if (i == 0)
            bytes.reserve(m_bytes.size() + piece.size());
        bytes.append(m_bytes.constData() + byte, offsets.at(2 * i) - byte).append(piece);
        byte = offsets.at(2 * i + 1);
    }
    return bytes.append(m_bytes.constData() + byte, m_bytes.size() - byte);
}

// Invalid bytes may join into a character, or a shift state may extend into the new text. What is
// before the first splice is read as it was.
bool XmlSource::reads(const QByteArray &bytes, const QVector<Splice> &splices) const
{
    const OffsetMap::Offset start = m_offsets.startBefore(splices.constFirst().begin);
    const OffsetMap after(bytes, m_encoding, start.byte);
    int here = start.character;
    int there = 0;
    const auto goesOn = [&after, &there](const QStringRef &expected) {
        const bool isSame = after.text().midRef(there, expected.size()) == expected;
        there += expected.size();
        return isSame;
    };
    for (const Splice &splice : splices) {
        if (!goesOn(text().midRef(here, splice.begin - here)) || !goesOn(QStringRef(&splice.text)))
            return false;
        here = splice.end;
    }
    return goesOn(text().midRef(here)) && there == after.text().size();
}

// The offsets of each splice's begin and end, or none at all. A position is found by the character
// after it or, if that is not ASCII, by the one before.
QVector<int> XmlSource::byteOffsets(const QVector<Splice> &splices) const
{
    QVector<int> characters;
    QVector<int> sizes;
    const auto add = [this, &characters, &sizes](int place) {
        const bool isAfter = place < text().size() && text().at(place) < QChar(0x80);
        characters.append(isAfter ? place : place - 1);
        sizes.append(isAfter ? 0 : m_encoding.unit());
    };
    for (const Splice &splice : splices) {
        add(splice.begin);
        add(splice.end);
    }

    QVector<int> offsets = m_offsets.byteOffsets(characters);
    for (int i = 0; i < offsets.size(); ++i)
        offsets[i] += sizes.at(i);
    return offsets;
}

} // namespace Quillmont::Library::Text
