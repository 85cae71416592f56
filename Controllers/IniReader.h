#ifndef CONTROLLERS_INIREADER_H
#define CONTROLLERS_INIREADER_H

#include <QByteArray>
#include <QStringList>

namespace Quillmont::Utility::Controllers {

/// Goes through an INI file as QSettings does, but takes every value for text.
class IniReader
{
public:
    /// @p bytes has to live as long as this.
    explicit IniReader(const QByteArray &bytes);

    /// Whether who wrote the file last had Qt write texts as UTF-8, instead of escaping what ASCII
    /// lacks.
    bool isUtf8() const { return m_isUtf8; }

    /// Goes on to the next value; false behind the last one.
    bool next();

    /// The value's key as the file spells it, with its section: "flightsim/A".
    QString key() const;

    /// The value's texts: one, or those of a list.
    QStringList texts() const;

    /// The section that @p key is in; empty for the one without a name.
    static QString sectionOf(const QString &key);

    /// Whether QSettings has to read this value before it can answer for a key in @p section: it
    /// reads a section at once, and none before somebody asks for it.
    bool isReadWith(const QString &section) const;

private:
    bool nextLine();
    void skipBetweenLines();
    int behindEscape(int backslash) const;
    int unescape(int begin, QString *text) const;
    int digitsEnd(int begin, int base) const;
    int skipBlanks(int begin) const;
    int plainEnd(int begin) const;

    const QByteArray &m_bytes;
    const bool m_isUtf8;
    QByteArray m_section;
    int m_begin = 0;
    int m_equals = -1;
    int m_end = 0;
};

} // namespace Quillmont::Utility::Controllers

#endif
