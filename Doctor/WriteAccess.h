#ifndef DOCTOR_WRITEACCESS_H
#define DOCTOR_WRITEACCESS_H

class QString;

namespace Quillmont::Utility::Doctor {

/// Whether this user may create and replace the file at @p path: in its folder, or if that is
/// missing in the nearest existing parent.
bool mayReplace(const QString &path);

} // namespace Quillmont::Utility::Doctor

#endif
