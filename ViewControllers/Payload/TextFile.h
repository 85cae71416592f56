#ifndef VIEWCONTROLLERS_PAYLOAD_TEXTFILE_H
#define VIEWCONTROLLERS_PAYLOAD_TEXTFILE_H

class QByteArray;
class QFile;
class QString;

namespace Quillmont::Utility::ViewControllers {

/// The bytes of the file at @p path. None if its name is not valid text, it cannot be read, or it
/// is larger than any record; then @p problem says so.
QByteArray contentOf(const QString &path, QString *problem);

/// The text of a file's @p bytes as QTextStream reads it: in the encoding of the byte-order mark,
/// without one in the locale's.
QString textOf(const QByteArray &bytes);

/// Opens @p file under the same conditions and makes @p bytes its content, as FileWriter::rewrite()
/// does. What is too large for contentOf() is not written: no later run could read or repair it.
bool rewriteText(QFile *file, const QByteArray &bytes, QString *problem);

} // namespace Quillmont::Utility::ViewControllers

#endif
