#ifndef TESTS_DOCUMENTS_TRANSLATEDTEXTS_H
#define TESTS_DOCUMENTS_TRANSLATEDTEXTS_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Tests {

/// A text of the program with its translation, as a translation file has them.
struct TranslatedText
{
    /// The class that says it, with its namespaces.
    QString context;
    QString source;
    /// One, or one per plural form.
    QStringList translations;
    bool isFinished = false;
};

/// The languages that there is a translation file for ("de", "pt_BR").
QStringList translatedLanguages();

/// Where the translation file of @p language is.
QString translationPath(const QString &language);

/// The texts of a translation file.
QList<TranslatedText> translatedTexts(const QByteArray &translations);

/// Has Qt's lupdate bring the translation file in line with the sources. False, and the test has
/// failed, if it cannot.
bool updateTranslations(const QString &file);

} // namespace Tests

#endif
