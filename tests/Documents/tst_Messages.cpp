#include "tests/Documents/Document.h"
#include "tests/Documents/TextList.h"
#include "tests/support/Files.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QtTest>

using namespace Tests;

/// Every message is explained in docs/troubleshooting.md.
class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void areExplained_data();
    void areExplained();
};

// The sources, with the parts of each text joined.
static QString sources()
{
    static const QRegularExpression seam(QStringLiteral("\"\\s*\n\\s*\""));
    QString code;
    for (const char *folder : {"ViewControllers", "Views", "Widgets"}) {
        QDirIterator it(QStringLiteral(ORBWELL_SOURCE "/") + QLatin1String(folder),
                        {QStringLiteral("*.cpp")});
        while (it.hasNext())
            code += QString::fromUtf8(readFile(it.next()));
    }
    return code.remove(seam);
}

// A text only for screen readers is not a message.
static bool isOnlySpoken(const QString &text, const QString &code)
{
    static const QRegularExpression spoken(QStringLiteral("setAccessible\\w+\\([^;]*;"));
    const QString call = QStringLiteral("tr(\"%1\"").arg(text);
    QString rest = code;
    return code.contains(call) && !rest.remove(spoken).contains(call);
}

void TestMessages::areExplained_data()
{
    QTest::addColumn<QString>("text");
    const QString code = sources();
    for (const ListedText &listed : listedTexts(readFile(textListPath()))) {
        // The doctor's sentences are explanations themselves.
        if (!listed.context.contains(QLatin1String("::Doctor::"))
            && !isOnlySpoken(listed.text, code))
            QTest::addRow(
                "%s: %s", qPrintable(listed.context.section(u':', -1)), qPrintable(listed.text))
                << listed.text;
    }
}

// The message as a document writes it: on its own line, in quotes or bold, with one ampersand, and
// with a word in capitals, or a status, for each placeholder.
static QRegularExpression asRead(const QString &line)
{
    static const QRegularExpression placeholder(QStringLiteral("%\\d"));
    QStringList parts
        = QString(line).replace(QLatin1String("&&"), QLatin1String("&")).split(placeholder);
    for (QString &part : parts)
        part = QRegularExpression::escape(part);
    const QString text = parts.join(QStringLiteral("([A-Z]+|(Not )?[Uu]pdated)"));
    return QRegularExpression(QStringLiteral("(^|\"|\\*\\*)%1($|\"|\\*\\*)").arg(text),
                              QRegularExpression::MultilineOption);
}

void TestMessages::areExplained()
{
    QFETCH(QString, text);
    const QString document = Document(QStringLiteral("docs/troubleshooting.md")).text();
    const QStringList lines = text.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    for (const QString &line : lines)
        QVERIFY2(document.contains(asRead(line)), qPrintable(line));
}

QTEST_GUILESS_MAIN(TestMessages)
#include "tst_Messages.moc"
