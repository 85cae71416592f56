#ifndef LIBRARY_HELPERS_XMLBLANK_H
#define LIBRARY_HELPERS_XMLBLANK_H

#include <QString>

namespace Quillmont::Library::Helpers {

/// The white space of XML, in front of places of a text.
class XmlBlank
{
public:
    /// Where the white space begins that reaches up to @p place.
    static int begin(const QString &text, int place);

    /// Where the white space ends that begins at @p place.
    static int end(const QString &text, int place);

    /// @p text without the white space at both its ends.
    static QString trimmed(const QString &text);

    /// The white space in front of @p place from its last line end on, all of it where it holds
    /// none.
    static QString lineBefore(const QString &text, int place);

    /// Whether there is a line end in @p text.
    static bool hasLineEnd(const QStringRef &text);

    /// Whether a line begins with nothing but white space in front of @p place.
    static bool beginsLine(const QString &text, int place);

    /// The last line end in front of @p place, as it is written; empty without one.
    static QString lineEndBefore(const QString &text, int place);

    /// @p line without the line end that it begins with.
    static QString indent(const QString &line);
};

} // namespace Quillmont::Library::Helpers

#endif
