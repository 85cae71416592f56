#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QJsonDocument>
#include <QtTest>

using namespace Tests;

class TestBadCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void leavesTheListEmptyAndTheDiskUnchanged_data();
    void leavesTheListEmptyAndTheDiskUnchanged();
    void mayBeMissing();
    void mayBeAFolder();
    void mayHoldWrongTypesEverywhere();
    void mayBeHuge();

private:
    void expectAWorkingWindow(int rows);

    QString catalogue() const { return m_program->folder() + QStringLiteral("/flightsims.json"); }

    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
};

void TestBadCatalogue::init()
{
    m_sandbox.reset(new Sandbox);
    m_program.reset(new Program(*m_sandbox));
}

void TestBadCatalogue::cleanup()
{
    m_program.reset();
    m_sandbox.reset();
}

void TestBadCatalogue::expectAWorkingWindow(int rows)
{
    m_program->start();
    QCOMPARE(m_program->window().buttons.size(), 2);
    QCOMPARE(m_program->rows().size(), rows);
    QCOMPARE(m_program->windows().size(), 1);
    QCOMPARE(treeOf(m_sandbox->dataRoot()).size(), 3); // the empty record and its two folders
    m_program->press(QStringLiteral("Close"));
    QCOMPARE(m_program->exitStatus(), 0);
}

void TestBadCatalogue::leavesTheListEmptyAndTheDiskUnchanged_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("only white space") << QByteArray("  \n");
    QTest::newRow("empty array") << QByteArray("[]");
    QTest::newRow("cut off") << QByteArray("[{\"name\": \"Skylark\", \"loc");
    QTest::newRow("object") << QByteArray(R"({"name": "Skylark"})");
    QTest::newRow("text") << QByteArray(R"("Skylark")");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("NUL bytes") << QByteArray(64, '\0');
    QTest::newRow("not UTF-8") << QByteArray("[{\"name\": \"\xff\xfe\"");
    QTest::newRow("nested too deeply") << QByteArray(100000, '[');
}

void TestBadCatalogue::leavesTheListEmptyAndTheDiskUnchanged()
{
    QFETCH(const QByteArray, content);
    writeFile(catalogue(), content);
    expectAWorkingWindow(0);
}

void TestBadCatalogue::mayBeMissing()
{
    expectAWorkingWindow(0);
}

void TestBadCatalogue::mayBeAFolder()
{
    QVERIFY(QDir().mkpath(catalogue()));
    expectAWorkingWindow(0);
}

void TestBadCatalogue::mayHoldWrongTypesEverywhere()
{
    QJsonArray entries{1, true, QStringLiteral("text"), QJsonArray(), QJsonObject(), QJsonValue()};
    const QJsonArray wrong{1.5, -1, true, QJsonArray{1}, QJsonObject{}, QJsonValue()};
    for (const char *key : {"name",
                            "simcode",
                            "location",
                            "path",
                            "key",
                            "type",
                            "target",
                            "root",
                            "files",
                            "config",
                            "conflict"}) {
        for (const QJsonValue &value : wrong)
            entries.append(QJsonObject{{QLatin1String(key), value}});
    }
    writeFile(catalogue(), QJsonDocument(entries).toJson());
    expectAWorkingWindow(entries.size());
}

void TestBadCatalogue::mayBeHuge()
{
    QJsonArray entries;
    for (int i = 0; i < 1000; ++i) {
        entries.append(pluginFolderEntry(QStringLiteral("Simulator %1").arg(i),
                                         m_sandbox->path(QString::number(i))));
        entries[i] = [](QJsonObject entry) {
            entry.insert(QStringLiteral("notes"), QString(2000, u'x'));
            return entry;
        }(entries.at(i).toObject());
    }
    writeFile(catalogue(), QJsonDocument(entries).toJson());
    expectAWorkingWindow(1000);
}

QTEST_GUILESS_MAIN(TestBadCatalogue)
#include "tst_BadCatalogue.moc"
