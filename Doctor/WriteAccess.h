#ifndef DOCTOR_WRITEACCESS_H
#define DOCTOR_WRITEACCESS_H

class QString;

namespace Quillmont::Utility::Doctor {

/// Whether this user may make and replace the file at @p path: in its folder, or in the one in
/// which that would have to be made.
bool mayReplace(const QString &path);

} // namespace Quillmont::Utility::Doctor

#endif
