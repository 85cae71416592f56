#include "tests/Documents/TranslatedTexts.h"
#include "tests/support/Command.h"
#include "tests/support/Files.h"
#include "tests/support/Literals.h"
#include "tests/support/Sandbox.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

using namespace Tests;

/// Every text is translated into every language, with its placeholders, line ends and keys.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();

    void coverTheTextsOfTheSources();
    void keepPlaceholdersAndLineEnds();
    void quoteTheButtonByItsName();
};

// Placeholders, line ends, and the ampersands that a button needs, sorted.
static QStringList marks(const QString &text)
{
    static const QRegularExpression mark("%[0-9n]|\r\n|\r|\n|&+"_s);
    QStringList marks;
    auto it = mark.globalMatch(text);
    while (it.hasNext())
        marks.append(it.next().captured());
    marks.sort();
    return marks;
}

static bool endsInLine(const QString &text)
{
    return text.endsWith("\r\n"_s);
}

void TestTranslations::initTestCase_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestTranslations::coverTheTextsOfTheSources()
{
    if (!Command::exists(QStringLiteral(ORBWELL_LUPDATE)))
        QSKIP("needs lupdate (Debian: qttools5-dev-tools)");
    QFETCH_GLOBAL(const QString, language);
    const Sandbox sandbox;
    const QString copy = sandbox.path("orbwell_%1.ts"_s.arg(language));
    QVERIFY(QFile::copy(translationPath(language), copy));
    QVERIFY(updateTranslations(copy));
    QVERIFY2(readFile(copy) == readFile(translationPath(language)),
             "the sources have other texts; script/translations brings them in");
    for (const TranslatedText &text : translatedTexts(readFile(copy))) {
        QVERIFY2(text.isFinished && !text.translations.isEmpty()
                     && !text.translations.contains(QString()),
                 qPrintable(text.source));
    }
}

void TestTranslations::keepPlaceholdersAndLineEnds()
{
    QFETCH_GLOBAL(const QString, language);
    for (const TranslatedText &text : translatedTexts(readFile(translationPath(language)))) {
        for (const QString &translation : text.translations) {
            QVERIFY2(marks(translation) == marks(text.source), qPrintable(translation));
            QVERIFY2(endsInLine(translation) == endsInLine(text.source), qPrintable(translation));
        }
    }
}

void TestTranslations::quoteTheButtonByItsName()
{
    QFETCH_GLOBAL(const QString, language);
    const QList<TranslatedText> texts = translatedTexts(readFile(translationPath(language)));
    QString button;
    for (const TranslatedText &text : texts) {
        if (text.source == "Scan && Install"_s)
            button = QString(text.translations.constFirst()).replace("&&"_s, "&"_s);
    }
    QVERIFY(!button.isEmpty());
    for (const TranslatedText &text : texts)
        QVERIFY2(!text.source.contains("\"Scan & Install\""_s)
                     || text.translations.constFirst().contains(button),
                 qPrintable(text.source));
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_Translations.moc"
