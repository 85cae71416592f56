#ifndef SIMDETECT_REGULARFILE_H
#define SIMDETECT_REGULARFILE_H

#include <QByteArray>
#include <QString>

namespace Quillmont::SimDetect {

/// The content of a small file. Only regular files are opened, since opening a pipe blocks, and
/// none that is larger than any real one.
class RegularFile
{
public:
    /// Reads the file at @p path if it has at most @p maxSize bytes and at most half of the
    /// remaining budget @p allowance, from which its size is subtracted.
    RegularFile(const QString &path, qint64 &allowance, qint64 maxSize = 1024LL * 1024);

    /// Why there is no content; empty if the whole file was read.
    const QString &problem() const { return m_problem; }

    /// The whole content; empty if there is a problem.
    const QByteArray &content() const { return m_content; }

    /// The beginning of the file at @p path, up to @p size bytes; empty if it cannot be read.
    static QByteArray beginning(const QString &path, int size);

private:
    QByteArray m_content;
    QString m_problem;
};

} // namespace Quillmont::SimDetect

#endif
