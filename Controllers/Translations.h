#ifndef CONTROLLERS_TRANSLATIONS_H
#define CONTROLLERS_TRANSLATIONS_H

#include <QString>

namespace Quillmont::Utility::Controllers {

/// The first of the user's languages that has a translation, by its name ("de", "pt_BR"). Empty for
/// English, and for the locale "C".
QString userLanguage();

/// Installs the program's translation into that language, and Qt's own if there is one. The
/// application object owns them. Does nothing for English.
void installTranslations();

} // namespace Quillmont::Utility::Controllers

#endif
