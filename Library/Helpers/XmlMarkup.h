#ifndef LIBRARY_HELPERS_XMLMARKUP_H
#define LIBRARY_HELPERS_XMLMARKUP_H

class QString;

namespace Quillmont::Library::Helpers {

/// Builds and escapes what is written into a document.
class XmlMarkup
{
public:
    /// The element @p name that holds @p text, on one line. A null text if XML cannot hold the
    /// name or the text.
    static QString element(const QString &name, const QString &text);

    /// @p text as it stands between two tags. A null text if XML cannot hold it.
    static QString escaped(const QString &text);
};

} // namespace Quillmont::Library::Helpers

#endif
