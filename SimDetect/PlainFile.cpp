#include "SimDetect/PlainFile.h"

#include <QFile>
#include <QFileInfo>

namespace Quillmont::SimDetect {

PlainFile::PlainFile(const QString &path, qint64 largest)
{
    QFile file(path);
    if (!QFileInfo(path).isFile())
        m_problem = QStringLiteral("not a plain file");
    else if (!file.open(QIODevice::ReadOnly))
        m_problem = QStringLiteral("cannot be read");
    else if (file.size() > largest)
        m_problem = QStringLiteral("too large");
    else
        m_content = file.read(largest);
}

QByteArray PlainFile::beginning(const QString &path, int size)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    return file.read(size);
}

} // namespace Quillmont::SimDetect
