#include "Controllers/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace Quillmont::Utility::Controllers {

namespace {

QString translationFile(const QString &language)
{
    return QStringLiteral(":/translations/orbwell_%0.qm").arg(language);
}

// The locale "C" overrides the list of languages. macOS has no such variables.
bool isPlainLocale()
{
#ifdef Q_OS_MACOS
    return false;
#else
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray locale = qgetenv(variable);
        if (!locale.isEmpty())
            return locale == "C" || locale.startsWith("C.") || locale == "POSIX";
    }
    return true;
#endif
}

// For "de-Latn-AT" tries "de_Latn_AT", "de_Latn" and "de".
QString translationFor(QString language)
{
    language.replace(u'-', u'_');
    while (!language.isEmpty() && !QFile::exists(translationFile(language)))
        language.truncate(qMax(0, language.lastIndexOf(u'_')));
    return language;
}

void install(const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(name, folder))
        QCoreApplication::installTranslator(translator);
}

} // namespace

QString userLanguage()
{
    if (isPlainLocale())
        return {};
    const QStringList languages = QLocale::system().uiLanguages();
    for (const QString &language : languages) {
        if (QLocale(language).language() == QLocale::English)
            return {};
        QString translation = translationFor(language);
        if (!translation.isEmpty())
            return translation;
    }
    return {};
}

void installTranslations()
{
    const QString language = userLanguage();
    if (language.isEmpty())
        return;
    install(QStringLiteral("qtbase_") + language,
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(translationFile(language), QString());
}

} // namespace Quillmont::Utility::Controllers
