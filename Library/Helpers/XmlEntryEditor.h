#ifndef LIBRARY_HELPERS_XMLENTRYEDITOR_H
#define LIBRARY_HELPERS_XMLENTRYEDITOR_H

class QByteArray;
class QString;

namespace Quillmont::Library::Models {
class XmlConfigModel;
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Library::Helpers {

/// Edits the bytes of an XML file. The answer is the same bytes if there is nothing to do, and
/// also if it cannot be done; then @p problem says why, and where.
class XmlEntryEditor
{
public:
    /// @p bytes with the one entry that @p model wants.
    static QByteArray
    inserted(const QByteArray &bytes, const Models::XmlInsertionModel &model, QString *problem);

    /// @p bytes without what @p model describes.
    static QByteArray
    removed(const QByteArray &bytes, const Models::XmlConfigModel &model, QString *problem);
};

} // namespace Quillmont::Library::Helpers

#endif
