#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Display.h"

#include <QtTest>

using namespace Tests;

// The runs end before there is an event loop, which must not crash on any platform.
class TestUnattendedOnAScreen : public QObject
{
    Q_OBJECT

private slots:
    void endsByItself_data();
    void endsByItself();
    void closesItsBoxesByMouse_data();
    void closesItsBoxesByMouse();
    void showsOneBoxAfterTheOther();

private:
    Display m_display;
};

void TestUnattendedOnAScreen::endsByItself_data()
{
    QTest::addColumn<bool>("onAScreen");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("withCatalogue");
    QTest::addColumn<int>("status");
    for (const bool onAScreen : {false, true}) {
        for (const bool withCatalogue : {false, true}) {
            for (const char *line : {"--INSTALL 1", "--UNINSTALL", "--REPAIR", "--INSTALL"}) {
                const QByteArray shown = QByteArray(line).replace("--", "");
                QTest::addRow("%s, %s, %s catalogue",
                              shown.constData(),
                              onAScreen ? "on a screen" : "without one",
                              withCatalogue ? "with" : "no")
                    << onAScreen << words(line) << withCatalogue
                    << (shown.startsWith("INSTALL") ? 2 : 0);
            }
        }
    }
}

// Every box is answered.
void TestUnattendedOnAScreen::endsByItself()
{
    QFETCH(const bool, onAScreen);
    QFETCH(const QStringList, arguments);
    QFETCH(const bool, withCatalogue);
    QFETCH(const int, status);
    if (onAScreen && !m_display.isUp())
        QSKIP("needs Xvfb and xdotool");
    Computer computer(onAScreen ? &m_display : nullptr);
    if (withCatalogue) {
        const QString det = QStringLiteral("Det");
        computer.addSimulator(det);
        computer.setCatalogue({computer.entry(det, 0)});
    }
    QCOMPARE(computer.run(arguments), status);
    QVERIFY(!computer.showedTheWindow());
    QVERIFY(withCatalogue || computer.boxes().isEmpty());
    const QByteArray log = computer.program().standardError();
    QVERIFY2(!log.contains("QPaintDevice") && !log.contains("QApplication") && !log.contains("Qt:"),
             log.constData());
}

void TestUnattendedOnAScreen::closesItsBoxesByMouse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("install")
        << words("--INSTALL") << 2 << "Quillmont Orbwell Settings"
        << "Quillmont Orbwell have successfully installed Orbwell plugin to  Wren Det.";
    QTest::newRow("repair") << words("--REPAIR") << 0 << "Plugins updated"
                            << "Quillmont Orbwell has updated plugins on your computer.\r\n\r\n"
                               "Please see the list below for details:\r\n\r\n"
                               "Wren: Updated\nDet: Updated";
}

void TestUnattendedOnAScreen::closesItsBoxesByMouse()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const QString, title);
    QFETCH(const QString, text);
    if (!m_display.isUp())
        QSKIP("needs Xvfb and xdotool");
    Computer computer(&m_display);
    QJsonArray catalogue;
    for (const char *name : {"Det", "Wren"}) {
        computer.addSimulator(QLatin1String(name));
        catalogue.append(computer.entry(QLatin1String(name), 0));
    }
    computer.setCatalogue(catalogue);

    QCOMPARE(computer.run(arguments), status);
    QCOMPARE(computer.boxes().size(), 1);
    const SeenWindow &box = computer.boxes().constFirst();
    QCOMPARE(box.title, title);
    QCOMPARE(box.text, text);
    QCOMPARE(box.icon, QStringLiteral("Information"));
    QCOMPARE(box.buttonTexts(), QStringList(QStringLiteral("OK")));
    QCOMPARE(box.parent, QString());
    QVERIFY(box.rectangle.contains(box.buttons.constFirst().rectangle));
    QVERIFY(QRect(0, 0, 1280, 1024).contains(box.rectangle));
}

// Closing a box closes the last window, but must not end the run.
void TestUnattendedOnAScreen::showsOneBoxAfterTheOther()
{
    if (!m_display.isUp())
        QSKIP("needs Xvfb and xdotool");
    Computer computer(&m_display);
    QJsonArray catalogue;
    QJsonArray records;
    for (const char *name : {"Wren", "Rec"}) {
        const QString simulator = QLatin1String(name);
        catalogue.append(computer.hiddenEntry(simulator, 0));
        records.append(computer.recordFor(computer.hiddenEntry(simulator, 0)));
        computer.write(QStringLiteral("sims/%1/Gauges/QuillmontOrbwell_64.dll/deep").arg(simulator),
                       "kept");
    }
    computer.setCatalogue(catalogue);
    computer.setRecords(records);

    QCOMPARE(computer.run(words("--UNINSTALL")), 2);
    const QString text
        = QStringLiteral("Uninstall: Quillmont Orbwell was not able to uninstall your Orbwell "
                         "plugin from %1.\r\n\r\nPlease see the list below for details:\r\n\r\n"
                         "Unable to remove file '%2/Gauges/QuillmontOrbwell_64.dll' from %1. "
                         "Please remove the file manually.\r\n");
    QStringList expected;
    for (const char *name : {"Rec", "Wren"})
        expected.append(text.arg(QLatin1String(name), computer.folder(QLatin1String(name))));
    QCOMPARE(computer.said(), expected);
    QCOMPARE(computer.records(), QJsonArray());
}

QTEST_GUILESS_MAIN(TestUnattendedOnAScreen)
#include "tst_UnattendedOnAScreen.moc"
