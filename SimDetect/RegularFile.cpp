#include "SimDetect/RegularFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Quillmont::SimDetect {

RegularFile::RegularFile(const QString &path, qint64 &allowance, qint64 maxSize)
{
    QFile file(path);
    if (!QFileInfo(path).isFile())
        m_problem = QStringLiteral("not a regular file");
    else if (!file.open(QIODevice::ReadOnly))
        m_problem = QStringLiteral("cannot be read");
    else if (file.size() > maxSize)
        m_problem = QStringLiteral("too large");
    else if (file.size() > allowance / 2) // so that no file uses up the whole budget
        m_problem = QStringLiteral("too much to read altogether");
    else
        m_content = file.read(std::min(maxSize, allowance / 2));
    allowance -= m_content.size();
}

QByteArray RegularFile::beginning(const QString &path, int size)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    return file.read(size);
}

} // namespace Quillmont::SimDetect
