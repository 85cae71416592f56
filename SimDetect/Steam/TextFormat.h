#ifndef SIMDETECT_STEAM_TEXTFORMAT_H
#define SIMDETECT_STEAM_TEXTFORMAT_H

#include <QByteArray>
#include <QString>

#include <string>

namespace Quillmont::SimDetect {

/// Reads Steam's text format: a list of `key value` or `key { ... }`, nested. It goes through the
/// text once, entry by entry, and keeps nothing but the entry at hand, however large the text.
///
/// The text is broken where it is cut off inside a block, where braces, keys and values do not
/// match up, and past a token of 64 KiB or 64 levels of blocks.
class TextFormat
{
public:
    /// The most bytes that a file in this format has.
    static constexpr qint64 largestFile = 8LL * 1024 * 1024;

    explicit TextFormat(QByteArray text);

    /// Goes to the next entry of the block that the reader is in. False at the block's end, which
    /// leads out of it, and where the text ends or is broken.
    bool next();

    /// Whether the entry is a block. Its own entries come next, unless it is skipped.
    bool isBlock() const { return m_isBlock; }

    /// Whether the entry's key is @p key, in any letter case.
    bool isKey(const char *key) const;

    /// The entry's key, in UTF-8.
    const std::string &key() const { return m_key; }

    /// The entry's value; empty for a block.
    QString value() const { return QString::fromStdString(m_value); }

    /// Goes past the entry, with all that is inside it.
    void skip();

    /// Goes into the block @p key among the entries to come. False where the first entry of that
    /// name is no block, or there is none.
    bool enter(const char *key);

    /// Whether the text so far is unusable.
    bool isBroken() const { return m_isBroken; }

private:
    bool fail();
    bool closeBlock();
    void skipBlanks();
    void skipCondition();
    bool readToken(std::string *token);
    bool readQuoted(std::string *token);
    void readCharacter(std::string *token);
    bool readBare(std::string *token);
    bool isAt(const char *characters) const;

    QByteArray m_text;
    // The text that is still to be read; there is a NUL at its end, which no rule knows.
    const char *m_at;
    const char *m_end;
    int m_level = 0;
    bool m_isBlock = false;
    bool m_isBroken = false;
    std::string m_key;
    std::string m_value;
};

} // namespace Quillmont::SimDetect

#endif
