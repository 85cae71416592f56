#ifndef CONTROLLERS_FILESTAMP_H
#define CONTROLLERS_FILESTAMP_H

#include <QByteArray>

class QString;

namespace Quillmont::Utility::Controllers {

/// Bytes that change whenever the content of the file at @p path does. Empty if the file does not
/// exist, or changed so recently that a further change might not show.
QByteArray fileStamp(const QString &path);

} // namespace Quillmont::Utility::Controllers

#endif
