#ifndef TESTS_DOCUMENTS_TRANSLATEDTEXTS_H
#define TESTS_DOCUMENTS_TRANSLATEDTEXTS_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Tests {

/// A text of the program with its translation, from a translation file.
struct TranslatedText
{
    /// The class that uses it, with its namespaces.
    QString context;
    QString source;
    /// One, or one per plural form.
    QStringList translations;
    bool isFinished = false;
};

/// The languages with a translation file ("de", "pt_BR").
QStringList translatedLanguages();

/// The path of the translation file of @p language.
QString translationPath(const QString &language);

/// The texts of a translation file.
QList<TranslatedText> translatedTexts(const QByteArray &translations);

/// Updates the translation file from the sources with Qt's lupdate. On failure, fails the test and
/// returns false.
bool updateTranslations(const QString &file);

} // namespace Tests

#endif
