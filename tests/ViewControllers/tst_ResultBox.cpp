#include "ViewControllers/ResultBox.h"

#include "tests/support/BoxAnswerer.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTextDocument>

using Quillmont::Utility::ViewControllers::showInformation;

class TestResultBox : public QObject
{
    Q_OBJECT

private slots:

    void saysWhatItIsTold()
    {
        const QString text
            = QStringLiteral("One line %1.\r\n\r\n'/sims/<b>x</b>'\r\n").repeated(50);
        const Tests::BoxAnswerer answerer;
        showInformation(QStringLiteral("Title"), text);
        QCOMPARE(answerer.boxes().size(), 1);
        QCOMPARE(answerer.boxes().constFirst().title, QStringLiteral("Title"));
        QCOMPARE(answerer.boxes().constFirst().text, text);
        // Paths stand behind the first line, where the toolkit looks for no markup.
        QVERIFY(!Qt::mightBeRichText(text));
    }

    void saysEveryLineOfMany()
    {
        const QString text
            = QStringLiteral("Unable to copy '/sims/a' to '/sims/b'.\r\n").repeated(2000);
        const Tests::BoxAnswerer answerer;
        showInformation(QStringLiteral("Title"), text);
        QCOMPARE(answerer.boxes().constFirst().text, text);
    }

    void cutsOffLinesThatNobodyCanCount()
    {
        const QString text = QStringLiteral("\n").repeated(5 * 1024 * 1024);
        const Tests::BoxAnswerer answerer;
        showInformation(QStringLiteral("Title"), text);
        QVERIFY(answerer.boxes().constFirst().text.size() < 100000);
    }

    void cutsOffALineThatNobodyCanRead()
    {
        const QString text = QStringLiteral("a/").repeated(20 * 1024 * 1024);
        const Tests::BoxAnswerer answerer;
        QElapsedTimer sinceAsked;
        sinceAsked.start();
        showInformation(QStringLiteral("Title"), text);
        const QString shown = answerer.boxes().constFirst().text;
        QVERIFY(shown.size() < 100000);
        QCOMPARE(shown.right(1), QString(QChar(0x2026)));
        QVERIFY(text.startsWith(shown.chopped(1)));
        QVERIFY2(sinceAsked.elapsed() < 20000, qPrintable(QString::number(sinceAsked.elapsed())));
    }
};

QTEST_MAIN(TestResultBox)
#include "tst_ResultBox.moc"
