#include "tests/Documents/TextList.h"
#include "tests/Documents/TranslatedTexts.h"
#include "tests/support/Command.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

/// The translatable texts: none is lost or added by accident.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void matchTheList();
    void haveTheClassThatUsesThemAsContext();
    void leaveOutStatusWords();

private:
    QList<ListedText> m_texts;
};

void TestTexts::initTestCase()
{
    if (!Command::exists(QStringLiteral(ORBWELL_LUPDATE)))
        QSKIP("needs lupdate (Debian: qttools5-dev-tools)");
    const Sandbox sandbox;
    const QString file = sandbox.path(QStringLiteral("texts.ts"));
    if (!updateTranslations(file))
        return;
    for (const TranslatedText &text : translatedTexts(readFile(file)))
        m_texts.append({text.context, text.source});
}

void TestTexts::matchTheList()
{
    if (qEnvironmentVariableIsSet("ORBWELL_WRITE_TEXTS"))
        writeFile(textListPath(), written(m_texts));
    const QList<QByteArray> now = written(m_texts).split('\n');
    const QList<QByteArray> listed = readFile(textListPath()).split('\n');
    for (const QByteArray &text : now)
        QVERIFY2(listed.contains(text), ("not in the list: " + text).constData());
    for (const QByteArray &text : listed)
        QVERIFY2(now.contains(text), ("not in the program: " + text).constData());
}

void TestTexts::haveTheClassThatUsesThemAsContext()
{
    for (const ListedText &text : qAsConst(m_texts))
        QVERIFY2(text.context.startsWith(QLatin1String("Quillmont::Utility::")),
                 qPrintable(text.context));
}

void TestTexts::leaveOutStatusWords()
{
    const QStringList words{QStringLiteral("Updated"),
                            QStringLiteral("Not updated"),
                            QStringLiteral("Uninstalled"),
                            QStringLiteral("Not uninstalled"),
                            QStringLiteral("updated"),
                            QStringLiteral("uninstalled")};
    for (const ListedText &text : qAsConst(m_texts))
        QVERIFY2(!words.contains(text.text), qPrintable(text.text));
}

QTEST_GUILESS_MAIN(TestTexts)
#include "tst_Texts.moc"
