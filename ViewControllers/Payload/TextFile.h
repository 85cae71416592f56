#ifndef VIEWCONTROLLERS_PAYLOAD_TEXTFILE_H
#define VIEWCONTROLLERS_PAYLOAD_TEXTFILE_H

#include <QIODevice>

class QByteArray;
class QFile;
class QString;

namespace Quillmont::Utility::ViewControllers {

/// Opens @p file as FileHelper does, where its name is text; otherwise @p problem says why not.
bool openText(QFile *file, QIODevice::OpenMode mode, QString *problem);

/// All the text of @p file, which is open. Where it is bigger than any record or cannot be read,
/// @p problem says so.
QString wholeText(QFile *file, QString *problem);

/// Opens @p file likewise and makes @p bytes its content, as FileWriter::rewrite() does. What is
/// too big for wholeText() is not written either: no later run could read it, or mend it.
bool rewriteText(QFile *file, const QByteArray &bytes, QString *problem);

} // namespace Quillmont::Utility::ViewControllers

#endif
