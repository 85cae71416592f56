#ifndef SIMDETECT_STEAM_TEXTFORMAT_H
#define SIMDETECT_STEAM_TEXTFORMAT_H

#include <QByteArray>
#include <QString>

#include <string>

namespace Quillmont::SimDetect {

/// Pull parser for Steam's text format (VDF): a list of `key value` or `key { ... }`, nested. It
/// reads the text once and keeps only the current entry.
///
/// The text is broken if it ends inside a block, if braces, keys and values do not match, or if a
/// token exceeds 64 KiB or blocks are nested deeper than 64 levels.
class TextFormat
{
public:
    /// The maximum size of a file in this format, in bytes.
    static constexpr qint64 maxFileSize = 8LL * 1024 * 1024;

    explicit TextFormat(QByteArray text);

    /// Advances to the next entry of the current block. False at the block's end, which also leaves
    /// the block, and if the text ends or is broken.
    bool next();

    /// Whether the entry is a block. Its entries come next, unless it is skipped.
    bool isBlock() const { return m_isBlock; }

    /// Whether the entry's key is @p key, in any letter case.
    bool isKey(const char *key) const;

    /// The entry's key, in UTF-8.
    const std::string &key() const { return m_key; }

    /// The entry's value; empty for a block.
    QString value() const { return QString::fromStdString(m_value); }

    /// Skips the entry with everything in it.
    void skip();

    /// Enters the next block @p key of the current block. False if the first entry with that key is
    /// not a block, or there is none.
    bool enter(const char *key);

    /// Whether the text read so far is broken.
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
    // The unread text; it ends with a NUL, which belongs to no token.
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
