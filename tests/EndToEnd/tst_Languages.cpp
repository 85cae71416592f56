#include "tests/Documents/TranslatedTexts.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Literals.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

/// The window uses the first of the user's languages that has a translation.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void isTheUsersFirstWithATranslation_data();
    void isTheUsersFirstWithATranslation();
    void appliesToEveryText_data();
    void appliesToEveryText();

private:
    static void speak(Program *program, const QString &locale, const QString &list);
};

// Returns the source text for English.
static QString translated(const QString &language, const QString &source, int form = 0)
{
    if (!language.isEmpty()) {
        for (const TranslatedText &text : translatedTexts(readFile(translationPath(language)))) {
            if (text.source == source)
                return text.translations.value(form);
        }
    }
    return source;
}

void TestLanguages::speak(Program *program, const QString &locale, const QString &list)
{
    program->setVariable("LC_ALL", QString());
    program->setVariable("LC_MESSAGES", QString());
    program->setVariable("LANG", locale);
    program->setVariable("LANGUAGE", list);
}

void TestLanguages::isTheUsersFirstWithATranslation_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("language");
    QTest::newRow("the locale's") << "de_AT.UTF-8"_s << QString() << "de"_s;
    QTest::newRow("the list's first") << "en_GB.UTF-8"_s
                                      << "fr:de"_s
                                      << "fr"_s;
    QTest::newRow("the second, if the first is unknown") << "fi_FI.UTF-8"_s
                                                         << "fi:pl"_s
                                                         << "pl"_s;
    QTest::newRow("English before another") << "de_DE.UTF-8"_s
                                            << "en:de"_s << QString();
    QTest::newRow("only unknown languages") << "fi_FI.UTF-8"_s << QString() << QString();
    QTest::newRow("C, whatever the list") << "C"_s
                                          << "de"_s << QString();
    QTest::newRow("C with an encoding") << "C.UTF-8"_s
                                        << "de"_s << QString();
    QTest::newRow("POSIX") << "POSIX"_s
                           << "de"_s << QString();
    QTest::newRow("no locale") << QString() << "de"_s << QString();
    QTest::newRow("Brazil's") << "pt_BR.UTF-8"_s << QString() << "pt_BR"_s;
    QTest::newRow("not Portugal's") << "pt_PT.UTF-8"_s << QString() << QString();
}

void TestLanguages::isTheUsersFirstWithATranslation()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, list);
    QFETCH(const QString, language);
    const Sandbox sandbox;
    Program program(sandbox);
    speak(&program, locale, list);
    place(program, {});
    program.start();
    QCOMPARE(program.window().title, translated(language, "Quillmont Orbwell Settings"_s));
}

void TestLanguages::appliesToEveryText_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestLanguages::appliesToEveryText()
{
    QFETCH(const QString, language);
    const Sandbox sandbox;
    Program program(sandbox);
    speak(&program, language + ".UTF-8"_s, QString());
    QDir().mkpath(sandbox.path("Skylark"_s));
    place(program,
          {pluginFolderEntry("Skylark"_s, sandbox.path("Skylark"_s)),
           pluginFolderEntry("Plover"_s, sandbox.path("Plover"_s))});
    const auto in = [&language](const QString &text) {
        return translated(language, text);
    };

    program.start();
    const SeenWindow window = program.window();
    QCOMPARE(window.title, in("Quillmont Orbwell Settings"_s));
    QVERIFY2(window.text.contains(in("Scan && Install"_s).replace("&&"_s, "&"_s)),
             qPrintable(window.text));
    QCOMPARE(window.buttonTexts(),
             QStringList({in("Scan && Install"_s).replace("&&"_s, "&"_s), in("Close"_s)}));
    QCOMPARE(program.row("Plover"_s).placeholder, in("Path not set"_s));
    QCOMPARE(program.row("Skylark"_s).action.text, in("Install Orbwell"_s));

    program.pressAction("Skylark"_s);
    const SeenWindow box = program.box();
    QCOMPARE(box.title, in("Installation complete"_s));
    QCOMPARE(box.text,
             in("Quillmont Orbwell have successfully installed Orbwell plugin to %0."_s)
                 .arg("Skylark"_s));
    program.pressKey("Esc"_s);
    QCOMPARE(program.row("Skylark"_s).action.text, in("Uninstall Orbwell"_s));
}

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_Languages.moc"
