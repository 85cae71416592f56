#ifndef CONTROLLERS_INIREADER_H
#define CONTROLLERS_INIREADER_H

#include <QByteArray>
#include <QStringList>

namespace Quillmont::Utility::Controllers {

/// Reads an INI file as QSettings does, but takes every value as text.
class IniReader
{
public:
    /// @p bytes has to live as long as this.
    explicit IniReader(const QByteArray &bytes);

    /// Whether the file was last written with UTF-8 texts instead of escapes.
    bool isUtf8() const { return m_isUtf8; }

    /// Advances to the next value; false after the last one.
    bool next();

    /// The value's key as the file spells it, with its section: "flightsim/A".
    QString key() const;

    /// The value's texts: one, or those of a list.
    QStringList texts() const;

    /// The section of @p key; empty for the unnamed one.
    static QString sectionOf(const QString &key);

    /// Whether QSettings reads this value when a key in @p section is requested: it reads one
    /// section at a time, on demand.
    bool isReadWith(const QString &section) const;

private:
    bool nextLine();
    void skipBetweenLines();
    int afterEscape(int backslash) const;
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
