#ifndef DOCTOR_LINEDIFF_H
#define DOCTOR_LINEDIFF_H

class QString;

namespace Quillmont::Utility::Doctor {

/// A unified diff from @p before to @p after, without context lines, which may be somebody else's.
/// Empty if nothing differs; a null @p before is a missing file.
QString lineDiff(const QString &path, const QString &before, const QString &after);

} // namespace Quillmont::Utility::Doctor

#endif
