#ifndef VIEWCONTROLLERS_PAYLOAD_TEXTFILE_H
#define VIEWCONTROLLERS_PAYLOAD_TEXTFILE_H

#include <QIODevice>

class QByteArray;
class QFile;
class QString;

namespace Quillmont::Utility::ViewControllers {

/// Opens @p file as FileHelper does, if its name is valid text; otherwise @p problem says why not.
bool openText(QFile *file, QIODevice::OpenMode mode, QString *problem);

/// The whole text of @p file, which is open. If it is larger than any record or cannot be read,
/// @p problem says so.
QString wholeText(QFile *file, QString *problem);

/// Opens @p file likewise and makes @p bytes its content, as FileWriter::rewrite() does. Text too
/// large for wholeText() is not written: no later run could read or repair it.
bool rewriteText(QFile *file, const QByteArray &bytes, QString *problem);

} // namespace Quillmont::Utility::ViewControllers

#endif
