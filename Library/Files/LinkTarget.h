#ifndef LIBRARY_FILES_LINKTARGET_H
#define LIBRARY_FILES_LINKTARGET_H

#include <QByteArray>

class QString;

namespace Quillmont::Library::Files {

/// @p path with all links resolved, in native encoding, as the system resolves it; the file need
/// not exist. Empty if the system would find nothing either: with a cycle of links, or a missing
/// folder.
QByteArray linkTarget(const QString &path);

} // namespace Quillmont::Library::Files

#endif
