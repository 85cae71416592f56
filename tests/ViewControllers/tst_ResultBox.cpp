#include "Widgets/ResultBox.h"

#include "tests/support/BoxAnswerer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>

using Quillmont::Utility::Widgets::showInformation;

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

    void fitsTheScreenWithItsButton_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isHigherThanTheScreen");
        const QString line = QStringLiteral("Unable to copy '/sims/a/b c' to '/sims/d'.\r\n");
        QTest::newRow("one line") << line << false;
        QTest::newRow("ten lines") << line.repeated(10) << false;
        QTest::newRow("sixty lines") << line.repeated(60) << true;
        QTest::newRow("two thousand lines") << line.repeated(2000) << true;
        QTest::newRow("sixty long lines")
            << (QStringLiteral("Unable to copy '%1'.\r\n").arg(QString(300, u'p'))).repeated(60)
            << true;
        QTest::newRow("one line of many words")
            << QStringLiteral("Simulator ").repeated(1000) << true;
    }

    void fitsTheScreenWithItsButton()
    {
        QFETCH(const QString, text);
        QFETCH(const bool, isHigherThanTheScreen);
        Tests::BoxAnswerer answerer;
        answerer.whileOpen([&] {
            const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            const QSize screen = QGuiApplication::primaryScreen()->availableSize();
            QVERIFY2(box->height() <= screen.height() && box->width() <= screen.width(),
                     qPrintable(QStringLiteral("%1 x %2").arg(box->width()).arg(box->height())));
            const auto *button = box->button(QMessageBox::Ok);
            const QRect place(button->mapTo(box, QPoint()), button->size());
            QVERIFY(box->rect().contains(place));
            QCOMPARE(box->focusWidget(), button);
            const auto *area = box->findChild<QScrollArea *>();
            QCOMPARE(area != nullptr, isHigherThanTheScreen);
            if (!area)
                return;
            QVERIFY(!place.intersects(QRect(area->mapTo(box, QPoint()), area->size())));
            const auto *label = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
            const int hidden = label->height() - area->viewport()->height();
            QCOMPARE(area->verticalScrollBar()->maximum(), hidden);
            QVERIFY(label->height() >= label->heightForWidth(label->width()));
            QVERIFY(area->focusPolicy() & Qt::TabFocus);
        });
        showInformation(QStringLiteral("Title"), text);
        QCOMPARE(answerer.boxes().constFirst().text, text);
    }

    void leavesABoxThatFitsAsQtMakesIt()
    {
        const QString text = QStringLiteral("Quillmont Orbwell for Skylark has been uninstalled.");
        QVector<QImage> pictures;
        Tests::BoxAnswerer answerer;
        answerer.whileOpen(
            [&] { pictures.append(QApplication::activeModalWidget()->grab().toImage()); });
        showInformation(QStringLiteral("Title"), text);
        QMessageBox::information(nullptr, QStringLiteral("Title"), text, QMessageBox::Ok);
        QCOMPARE(pictures.size(), 2);
        QCOMPARE(pictures.constFirst(), pictures.constLast());
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
