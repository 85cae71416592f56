#ifndef DOCTOR_LINEDIFF_H
#define DOCTOR_LINEDIFF_H

class QString;

namespace Quillmont::Utility::Doctor {

/// What makes @p after of @p before, as a unified diff without lines around the changes, which may
/// be somebody else's. Empty where nothing is different; a null @p before is a missing file.
QString lineDiff(const QString &path, const QString &before, const QString &after);

} // namespace Quillmont::Utility::Doctor

#endif
