#ifndef DOCTOR_LINEDIFF_H
#define DOCTOR_LINEDIFF_H

#include <QStringList>
#include <QVector>

namespace Quillmont::Utility::Doctor {

/// Lines that take the place of those from begin up to end.
struct LineEdit
{
    int begin;
    int end;
    QStringList lines;
};

/// @p text in lines with their ends; the last may have none.
QStringList linesOf(const QString &text);

/// What makes @p after of @p before, as a unified diff without lines around the changes, which may
/// be somebody else's. Empty where nothing is different; a null @p before is a missing file.
QString lineDiff(const QString &path, const QString &before, const QString &after);

/// The same for changes of @p before that are known, in their order.
QString lineDiff(const QString &path, const QStringList &before, const QVector<LineEdit> &edits);

} // namespace Quillmont::Utility::Doctor

#endif
