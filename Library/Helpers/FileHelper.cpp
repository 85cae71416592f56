#include "Library/Helpers/FileHelper.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextCodec>

namespace Quillmont::Library::Helpers {

bool FileHelper::saveText(const QString &path, const QString &text, const QString &encoding)
{
    auto *codec = QTextCodec::codecForName(encoding.isEmpty() ? "UTF-8" : encoding.toLatin1());
    if (!codec || !QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(codec->fromUnicode(text));
    if (!file.flush())
        file.cancelWriting();
    return file.commit();
}

} // namespace Quillmont::Library::Helpers
