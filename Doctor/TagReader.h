#ifndef DOCTOR_TAGREADER_H
#define DOCTOR_TAGREADER_H

#include <QString>

namespace Quillmont::Utility::Doctor {

/// One piece of markup in a text that need not be well formed.
struct Tag
{
    enum Kind {
        Start,
        SelfClosed,
        End,
        Declaration, ///< "<?xml ...?>"
        Other, ///< A comment, an instruction, a CDATA section, a document type.
        Malformed, ///< It does not begin like a tag: "<\Path>", "< Path>".
        Unfinished, ///< Another tag, or the end of the text, comes before its ">".
        Nothing ///< There is no more markup.
    };

    Kind kind = Nothing;
    QString name; ///< The element's name, as far as it can be recognised; without "<\" or "</ ".
    int begin = -1; ///< Of its "<".
    int end = -1; ///< After its ">".
    bool isInQuotation = false; ///< Whether a quotation in it has no end.
};

/// Goes from tag to tag through a text that a strict reader has refused.
class TagReader
{
public:
    /// @p text has to outlive this.
    explicit TagReader(const QString &text)
        : m_text(text)
    { }

    /// The next piece of markup.
    Tag next();

private:
    Tag special(int begin) const;
    Tag element(int begin) const;
    int closing(int begin, bool *isInQuotation) const;

    const QString &m_text;
    int m_place = 0;
};

/// Whether @p text, well formed or not, is a web page.
bool isWebPage(const QString &text);

} // namespace Quillmont::Utility::Doctor

#endif
