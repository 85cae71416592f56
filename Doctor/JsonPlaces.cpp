#include "Doctor/JsonPlaces.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Quillmont::Utility::Doctor {

JsonPlaces::JsonPlaces(const QByteArray &text)
    : m_text(text)
{
    if (QJsonDocument::fromJson(text).isNull())
        return;
    skipSpace();
    readValue(QString());
}

// Columns count characters, not bytes.
JsonPlaces::Place JsonPlaces::placeAt(int offset) const
{
    const QByteArray before = m_text.left(offset);
    const int begin = before.lastIndexOf('\n') + 1;
    return {before.count('\n') + 1, QString::fromUtf8(before.mid(begin)).size() + 1};
}

// NOLINTNEXTLINE(misc-no-recursion): ends at the depth that QJsonDocument allows.
void JsonPlaces::readValue(const QString &path)
{
    const char first = m_text.mid(m_place, 1).isEmpty() ? '\0' : m_text.at(m_place);
    if (first == '{')
        readMembers(path);
    else if (first == '[')
        readElements(path);
    else if (first == '"')
        readString();
    else
        while (m_place < m_text.size() && !QByteArray(",]} \t\r\n").contains(m_text.at(m_place)))
            ++m_place;
}

// NOLINTNEXTLINE(misc-no-recursion)
void JsonPlaces::readMembers(const QString &path)
{
    ++m_place;
    for (skipSpace(); m_place < m_text.size() && m_text.at(m_place) == '"'; skipSpace()) {
        const int begin = m_place;
        const QString member = path + u'/' + readString();
        const QString key = path.isEmpty() ? member.mid(1) : member;
        if (m_offsets.contains(key))
            m_repeated.append({key, begin});
        m_offsets.insert(key, begin);
        skipSpace();
        ++m_place; // the colon
        skipSpace();
        readValue(key);
        skipSpace();
        if (m_place < m_text.size() && m_text.at(m_place) == ',')
            ++m_place;
    }
    ++m_place;
}

// NOLINTNEXTLINE(misc-no-recursion)
void JsonPlaces::readElements(const QString &path)
{
    ++m_place;
    skipSpace();
    for (int i = 0; m_place < m_text.size() && m_text.at(m_place) != ']'; ++i) {
        const QString element
            = path.isEmpty() ? QString::number(i) : path + u'/' + QString::number(i);
        m_offsets.insert(element, m_place);
        readValue(element);
        skipSpace();
        if (m_place < m_text.size() && m_text.at(m_place) == ',')
            ++m_place;
        skipSpace();
    }
    ++m_place;
}

QString JsonPlaces::readString()
{
    const int begin = m_place;
    for (++m_place; m_place < m_text.size() && m_text.at(m_place) != '"'; ++m_place)
        m_place += m_text.at(m_place) == '\\' ? 1 : 0;
    ++m_place;
    const QByteArray array = '[' + m_text.mid(begin, m_place - begin) + ']';
    return QJsonDocument::fromJson(array).array().at(0).toString();
}

void JsonPlaces::skipSpace()
{
    while (m_place < m_text.size() && QByteArray(" \t\r\n").contains(m_text.at(m_place)))
        ++m_place;
}

} // namespace Quillmont::Utility::Doctor
