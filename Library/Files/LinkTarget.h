#ifndef LIBRARY_FILES_LINKTARGET_H
#define LIBRARY_FILES_LINKTARGET_H

#include <QByteArray>

class QString;

namespace Quillmont::Library::Files {

/// The native path of the file that the system means by @p path, which need not exist: its last
/// name is no symbolic link, and the folder before that is free of links and "..". Empty where the
/// system would find no file either: in a circle of links, or a folder that is missing.
QByteArray linkTarget(const QString &path);

} // namespace Quillmont::Library::Files

#endif
