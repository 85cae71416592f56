#ifndef VIEWCONTROLLERS_PAYLOAD_TEXTFILE_H
#define VIEWCONTROLLERS_PAYLOAD_TEXTFILE_H

#include <QIODevice>

class QByteArray;
class QFile;
class QString;

namespace Quillmont::Utility::ViewControllers {

/// Opens @p file as FileHelper does, if its name is valid text; otherwise @p problem says why not.
bool openText(QFile *file, QIODevice::OpenMode mode, QString *problem);

/// All the bytes of @p file, which is open. None if it is larger than any record or cannot be read;
/// then @p problem says so.
QByteArray wholeContent(QFile *file, QString *problem);

/// The text of a file's @p bytes as QTextStream reads it: in the encoding of the byte-order mark,
/// without one in the locale's.
QString textOf(const QByteArray &bytes);

/// Opens @p file likewise and makes @p bytes its content, as FileWriter::rewrite() does. What is
/// too large for wholeContent() is not written: no later run could read or repair it.
bool rewriteText(QFile *file, const QByteArray &bytes, QString *problem);

} // namespace Quillmont::Utility::ViewControllers

#endif
