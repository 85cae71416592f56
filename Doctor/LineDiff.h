#ifndef DOCTOR_LINEDIFF_H
#define DOCTOR_LINEDIFF_H

#include <QStringList>
#include <QVector>

namespace Quillmont::Utility::Doctor {

/// Lines that replace those from begin up to end.
struct LineEdit
{
    int begin;
    int end;
    QStringList lines;
};

/// The lines of @p text with their line ends; the last one may have none.
QStringList linesOf(const QString &text);

/// The change from @p before to @p after as a unified diff without context lines, which may be
/// somebody else's. Empty if nothing differs; a null @p before is a missing file.
QString lineDiff(const QString &path, const QString &before, const QString &after);

/// The same for known @p edits of @p before, in order.
QString lineDiff(const QString &path, const QStringList &before, const QVector<LineEdit> &edits);

} // namespace Quillmont::Utility::Doctor

#endif
