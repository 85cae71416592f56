#ifndef DOCTOR_PAGE_H
#define DOCTOR_PAGE_H

#include <QString>

namespace Quillmont::Utility::Doctor {

/// Text for a person, without control characters: folded to the width of the terminal, and coloured
/// where that is wanted.
class Page
{
public:
    enum Style {
        Plain,
        Title,
        Good,
        Bad
    };

    /// For what standard output is: a file or a pipe gets no colours, and its lines are not folded.
    static Page forStandardOutput();

    /// Lines have @p width characters, or are not folded if that is 0.
    Page(int width, bool isColoured)
        : m_width(width)
        , m_isColoured(isColoured)
    { }

    /// Adds a line behind @p indent blanks; what is folded is indented by two more.
    void add(int indent, const QString &line, Style style = Plain);

    /// Adds @p line as it is, never folded.
    void addExactly(int indent, const QString &line, Style style = Plain);

    void addEmptyLine() { m_text += u'\n'; }

    const QString &text() const { return m_text; }

private:
    QString coloured(const QString &line, Style style) const;

    const int m_width;
    const bool m_isColoured;
    QString m_text;
};

} // namespace Quillmont::Utility::Doctor

#endif
