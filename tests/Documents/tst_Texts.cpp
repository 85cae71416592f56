#include "tests/Documents/TextList.h"
#include "tests/support/Command.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QFile>
#include <QXmlStreamReader>
#include <QtTest>

using namespace Tests;

/// The texts that a translator gets: none is lost, and none is new by accident.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void areThoseOfTheList();
    void belongToTheClassThatSaysThem();
    void haveNoStatusWords();

private:
    QList<ListedText> m_texts;
};

// Bytes that XML cannot hold as they are stand in the file as numbers.
static QString sourceText(QXmlStreamReader &reader)
{
    QString text;
    while (reader.readNext() != QXmlStreamReader::EndElement) {
        if (reader.isStartElement()) {
            text += QChar(
                reader.attributes().value(QLatin1String("value")).mid(1).toUInt(nullptr, 16));
            reader.skipCurrentElement();
        } else {
            text += reader.text();
        }
    }
    return text;
}

static QList<ListedText> extractedTexts(const QByteArray &translations)
{
    QList<ListedText> texts;
    QXmlStreamReader reader(translations);
    QString context;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("name"))
            context = reader.readElementText();
        else if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            texts.append({context, sourceText(reader)});
    }
    return texts;
}

void TestTexts::initTestCase()
{
    if (!Command::exists(QStringLiteral(ORBWELL_LUPDATE)))
        QSKIP("needs lupdate (Debian: qttools5-dev-tools)");
    const Sandbox sandbox;
    const QString file = sandbox.path(QStringLiteral("texts.ts"));
    // Without the headers it would not know which namespace a class is in, and a translation would
    // not be found when the program asks for it.
    const CommandResult result = Command(QStringLiteral(ORBWELL_LUPDATE),
                                         {QStringLiteral("-I"),
                                          QStringLiteral("."),
                                          QStringLiteral("-locations"),
                                          QStringLiteral("none"),
                                          QStringLiteral("main.cpp"),
                                          QStringLiteral("Controllers"),
                                          QStringLiteral("Library"),
                                          QStringLiteral("Models"),
                                          QStringLiteral("SimDetect"),
                                          QStringLiteral("ViewControllers"),
                                          QStringLiteral("Views"),
                                          QStringLiteral("Widgets"),
                                          QStringLiteral("-ts"),
                                          file})
                                     .in(QStringLiteral(ORBWELL_SOURCE))
                                     .run();
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.errors, QByteArray());
    m_texts = extractedTexts(readFile(file));
}

void TestTexts::areThoseOfTheList()
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

void TestTexts::belongToTheClassThatSaysThem()
{
    for (const ListedText &text : qAsConst(m_texts))
        QVERIFY2(text.context.startsWith(QLatin1String("Quillmont::Utility::")),
                 qPrintable(text.context));
}

void TestTexts::haveNoStatusWords()
{
    const QStringList words{QStringLiteral("Updated"),
                            QStringLiteral("Not updated"),
                            QStringLiteral("uninstalled"),
                            QStringLiteral("Not uninstalled"),
                            QStringLiteral("updated"),
                            QStringLiteral("uninstalled")};
    for (const ListedText &text : qAsConst(m_texts))
        QVERIFY2(!words.contains(text.text), qPrintable(text.text));
}

QTEST_GUILESS_MAIN(TestTexts)
#include "tst_Texts.moc"
