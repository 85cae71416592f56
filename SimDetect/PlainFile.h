#ifndef SIMDETECT_PLAINFILE_H
#define SIMDETECT_PLAINFILE_H

#include <QByteArray>
#include <QString>

namespace Quillmont::SimDetect {

/// What a small file holds. Only plain files are opened, since opening a pipe waits for its
/// other end, and no file that is larger than what a real one can be.
class PlainFile
{
public:
    /// Reads the file at @p path, if it has no more than @p largest bytes and no more than half
    /// of what is left of the @p allowance, from which they are taken.
    PlainFile(const QString &path, qint64 &allowance, qint64 largest = 1024LL * 1024);

    /// Why there is no content; empty where the whole file was read.
    const QString &problem() const { return m_problem; }

    /// The whole content; empty where there is a problem.
    const QByteArray &content() const { return m_content; }

    /// The beginning of the file at @p path, up to @p size bytes; empty where it cannot be read.
    static QByteArray beginning(const QString &path, int size);

private:
    QByteArray m_content;
    QString m_problem;
};

} // namespace Quillmont::SimDetect

#endif
