#ifndef CONTROLLERS_TRANSLATIONS_H
#define CONTROLLERS_TRANSLATIONS_H

#include <QString>

namespace Quillmont::Utility::Controllers {

/// The first language of the user's list that the program speaks, by the name of its translation
/// ("de", "pt_BR"). Empty for English, which is also what a user with the locale "C" gets.
QString userLanguage();

/// Has the application object's texts, and Qt's own where they are installed, come in that
/// language. The translations belong to the application object. Does nothing for English.
void installTranslations();

} // namespace Quillmont::Utility::Controllers

#endif
