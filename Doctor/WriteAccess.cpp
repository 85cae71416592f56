#include "Doctor/WriteAccess.h"

#include <QFileInfo>

namespace Quillmont::Utility::Doctor {

bool mayReplace(const QString &path)
{
    QString folder = QFileInfo(path).absolutePath();
    while (!QFileInfo::exists(folder) && folder.lastIndexOf(u'/') > 0)
        folder = folder.left(folder.lastIndexOf(u'/'));
    return QFileInfo(folder).isWritable() && QFileInfo(folder).isExecutable();
}

} // namespace Quillmont::Utility::Doctor
