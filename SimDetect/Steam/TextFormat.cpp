#include "SimDetect/Steam/TextFormat.h"

#include <algorithm>
#include <utility>

namespace Quillmont::SimDetect {

namespace {

constexpr int maxTokenSize = 64 * 1024;
constexpr int maxLevel = 64;

bool isBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool endsBareToken(char character)
{
    return isBlank(character) || character == '{' || character == '}' || character == '"';
}

// The character that a backslash and @p character mean; 0 if the pair is literal.
char unescaped(char character)
{
    switch (character) {
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case '\\':
    case '"':
        return character;
    default:
        return 0;
    }
}

} // namespace

TextFormat::TextFormat(QByteArray text)
    : m_text(std::move(text))
    , m_at(m_text.constData())
    , m_end(m_at + m_text.size())
{
    if (isAt("\xEF\xBB\xBF"))
        m_at += 3;
}

bool TextFormat::next()
{
    m_key.clear();
    m_value.clear();
    m_isBlock = false;
    skipBlanks();
    skipCondition();
    if (m_isBroken || (m_at == m_end && m_level == 0))
        return false;
    if (*m_at == '}')
        return closeBlock();
    if (!readToken(&m_key))
        return fail();
    skipBlanks();
    const char *const value = m_at;
    skipCondition();
    if (m_isBroken)
        return false;
    if (*m_at != '{') {
        m_at = value; // A condition belongs to a block here; before a plain value it is the value.
        return readToken(&m_value) || fail();
    }
    ++m_at;
    ++m_level;
    m_isBlock = true;
    return m_level <= maxLevel || fail();
}

bool TextFormat::isKey(const char *key) const
{
    return m_key.size() == qstrlen(key) && qstrnicmp(m_key.data(), key, uint(m_key.size())) == 0;
}

void TextFormat::skip()
{
    if (!m_isBlock)
        return;
    const int outside = m_level - 1;
    while (m_level > outside && !m_isBroken)
        next();
}

bool TextFormat::enter(const char *key)
{
    while (next()) {
        if (isKey(key))
            return m_isBlock;
        skip();
    }
    return false;
}

bool TextFormat::fail()
{
    m_isBroken = true;
    return false;
}

bool TextFormat::closeBlock()
{
    if (m_level == 0)
        return fail();
    ++m_at;
    --m_level;
    return false;
}

void TextFormat::skipBlanks()
{
    while (m_at != m_end)
        if (isBlank(*m_at))
            ++m_at;
        else if (isAt("//"))
            m_at = std::find(m_at, m_end, '\n');
        else
            return;
}

void TextFormat::skipCondition()
{
    while (isAt("[$") || isAt("[!$")) {
        const char *end = std::find(m_at, m_end, ']');
        if (end == m_end || end - m_at > maxTokenSize) {
            fail();
            return;
        }
        m_at = end + 1;
        skipBlanks();
    }
}

bool TextFormat::readToken(std::string *token)
{
    if (m_at == m_end || *m_at == '{' || *m_at == '}')
        return false;
    return *m_at == '"' ? readQuoted(token) : readBare(token);
}

bool TextFormat::readQuoted(std::string *token)
{
    ++m_at;
    while (m_at != m_end && *m_at != '"' && token->size() <= maxTokenSize)
        readCharacter(token);
    if (m_at == m_end || token->size() > maxTokenSize)
        return false;
    ++m_at;
    return true;
}

void TextFormat::readCharacter(std::string *token)
{
    const char first = *m_at++;
    if (first != '\\' || m_at == m_end) {
        token->push_back(first);
        return;
    }
    const char second = *m_at++;
    if (const char meant = unescaped(second); meant != 0) {
        token->push_back(meant);
    } else {
        token->push_back(first);
        token->push_back(second);
    }
}

bool TextFormat::readBare(std::string *token)
{
    const char *start = m_at;
    while (m_at != m_end && !endsBareToken(*m_at))
        ++m_at;
    if (m_at - start > maxTokenSize)
        return false;
    token->assign(start, m_at);
    return true;
}

bool TextFormat::isAt(const char *characters) const
{
    return qstrncmp(m_at, characters, qstrlen(characters)) == 0;
}

} // namespace Quillmont::SimDetect
