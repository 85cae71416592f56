#ifndef LIBRARY_XML_EDITEDXML_H
#define LIBRARY_XML_EDITEDXML_H

#include <QtGlobal>

class QByteArray;
class QString;

namespace Quillmont::Library::Models {
class XmlConfigModel;
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Library::Xml {

struct RootChild;

/// In bytes. Real configuration files have some kilobytes; larger ones are refused to save memory.
constexpr qint64 maxFileSize = 32LL * 1024 * 1024;

/// Whether @p child of the root is what @p model recognises as ours.
[[nodiscard]] bool isOurs(const RootChild &child, const Models::XmlConfigModel &model);

/// @p bytes of an XML file with exactly one add-on element of ours, as @p model describes it. The
/// same bytes if there is nothing to do, or if it cannot be done; then @p problem says why, and
/// where.
[[nodiscard]] QByteArray
withEntry(const QByteArray &bytes, const Models::XmlInsertionModel &model, QString *problem);

/// The same without what @p model describes.
[[nodiscard]] QByteArray
withoutEntry(const QByteArray &bytes, const Models::XmlConfigModel &model, QString *problem);

} // namespace Quillmont::Library::Xml

#endif
