#ifndef DOCTOR_PAGE_H
#define DOCTOR_PAGE_H

#include <QString>

namespace Quillmont::Utility::Doctor {

/// Text for a person, without control characters: wrapped to the width of the terminal, and
/// coloured on request.
class Page
{
public:
    enum Style {
        Plain,
        Title,
        Good,
        Bad
    };

    /// For standard output: a file or a pipe gets no colours and no wrapping.
    static Page forStandardOutput();

    /// Lines have @p width columns, or are not folded if that is 0.
    Page(int width, bool isColoured)
        : m_width(width)
        , m_isColoured(isColoured)
    { }

    /// Adds a line indented by @p indent spaces; wrapped lines are indented by two more.
    void add(int indent, const QString &line, Style style = Plain);

    /// Adds @p line as it is, never wrapped.
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
