#include "Widgets/ResultBox.h"

#include "tests/support/BoxAnswerer.h"

#include <QAccessible>
#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>

using Quillmont::Utility::Widgets::showInformation;

// The text without spaces and line ends.
static QString bare(const QString &text)
{
    return QString(text).remove(u'\r').remove(u'\n');
}

class TestResultBox : public QObject
{
    Q_OBJECT

private slots:

    void showsItsTitleAndText()
    {
        const QString text
            = QStringLiteral("One line %1.\r\n\r\n'/sims/<b>x</b>'\r\n").repeated(50);
        const Tests::BoxAnswerer answerer;
        showInformation(QStringLiteral("Title"), text);
        QCOMPARE(answerer.boxes().size(), 1);
        QCOMPARE(answerer.boxes().constFirst().title, QStringLiteral("Title"));
        QCOMPARE(answerer.boxes().constFirst().text, text);
        // Paths are after the first line, where Qt does not look for markup.
        QVERIFY(!Qt::mightBeRichText(text));
    }

    void showsEveryLineOfALongText()
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
        QTest::newRow("one line without a space")
            << QStringLiteral("Unable to copy '%1'.").arg(QString(200000, u'p')) << true;
        QTest::newRow("forty million characters")
            << QStringLiteral("a/").repeated(20 * 1024 * 1024) << true;
        QTest::newRow("a million line ends") << QString(1024 * 1024, u'\n') << true;
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
            auto *view = box->findChild<QPlainTextEdit *>();
            QCOMPARE(view != nullptr, isHigherThanTheScreen);
            if (!view)
                return;
            QVERIFY(view->isVisible() && view->isReadOnly());
            QVERIFY(!place.intersects(QRect(view->mapTo(box, QPoint()), view->size())));
            QVERIFY(box->height() > screen.height() / 2);
            QVERIFY(view->verticalScrollBar()->maximum() > 0);
            QVERIFY(view->focusPolicy() & Qt::TabFocus);
            const auto *read = QAccessible::queryAccessibleInterface(view);
            QCOMPARE(read->text(QAccessible::Name), box->windowTitle());
            const QString lines = read->text(QAccessible::Value);
            QCOMPARE(bare(lines), bare(text));
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
};

QTEST_MAIN(TestResultBox)
#include "tst_ResultBox.moc"
