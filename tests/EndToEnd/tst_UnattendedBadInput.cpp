#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

using namespace Tests;

// Records and configuration files that are damaged or not regular files.
class TestUnattendedBadInput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void usesTheLastOfTwoRecords();
    void usesTheRecordWhoseFilesExist();
    void keepsForeignRecords();
    void ignoresRecordsOfWrongTypes_data();
    void ignoresRecordsOfWrongTypes();
    void replacesAnUnreadableRecord_data();
    void replacesAnUnreadableRecord();
    void keepsAFileInPlaceOfAFolder();
    void reportsAFolderInPlaceOfTheRecord();
    void keepsAMalformedConfiguration_data();
    void keepsAMalformedConfiguration();
    void worksWithAFolderInPlaceOfTheConfiguration();

private:
    QString file(const QString &simulator) const;
    QJsonObject recordIn(const QString &folder) const;

    const QString m_rec = QStringLiteral("Rec");
    const QString m_det = QStringLiteral("Det");
    QScopedPointer<Computer> m_computer;
};

void TestUnattendedBadInput::init()
{
    m_computer.reset(new Computer);
    m_computer->setCatalogue({m_computer->hiddenEntry(m_rec, 1)});
}

void TestUnattendedBadInput::cleanup()
{
    m_computer.reset();
}

QString TestUnattendedBadInput::file(const QString &simulator) const
{
    return m_computer->folder(simulator) + QLatin1String("/Resources/plugins/Orbwell/about.txt");
}

// A record that says that "Rec" is in the folder.
QJsonObject TestUnattendedBadInput::recordIn(const QString &folder) const
{
    QJsonObject record = m_computer->recordFor(m_computer->entry(folder, 1));
    record.insert(QStringLiteral("name"), m_rec);
    return record;
}

// The first counts in the next run.
void TestUnattendedBadInput::usesTheLastOfTwoRecords()
{
    const QString a = QStringLiteral("A");
    const QString b = QStringLiteral("B");
    m_computer->addPlugin(a, 1);
    m_computer->addPlugin(b, 1);
    m_computer->setRecords({recordIn(a), recordIn(b)});

    QCOMPARE(m_computer->run(words("--UNINSTALL")), 0);
    QVERIFY(QFileInfo::exists(file(a)));
    QVERIFY(!QFileInfo::exists(file(b)));
    QCOMPARE(m_computer->records(), QJsonArray{recordIn(a)});

    QCOMPARE(m_computer->run(words("--UNINSTALL")), 0);
    QVERIFY(!QFileInfo::exists(file(a)));
    QCOMPARE(m_computer->records(), QJsonArray());
}

// And removes the last one, whichever counted.
void TestUnattendedBadInput::usesTheRecordWhoseFilesExist()
{
    const QString a = QStringLiteral("A");
    m_computer->addPlugin(a, 1);
    m_computer->setRecords({recordIn(a), recordIn(QStringLiteral("gone"))});
    QCOMPARE(m_computer->run(words("--UNINSTALL")), 0);
    QVERIFY(!QFileInfo::exists(file(a)));
    QCOMPARE(m_computer->records(), QJsonArray{recordIn(a)});
}

void TestUnattendedBadInput::keepsForeignRecords()
{
    const QJsonArray foreign{5,
                             QStringLiteral("text"),
                             QJsonValue(),
                             QJsonArray{1, 2},
                             QJsonObject(),
                             QJsonObject{{QStringLiteral("name"), QStringLiteral("rec")}},
                             QJsonObject{{QStringLiteral("name"), QString::fromUtf8("Söüé 飛行")},
                                         {QStringLiteral("path"), QStringLiteral("/")},
                                         {QStringLiteral("more"), QJsonArray{true}}}};
    QJsonArray records = foreign;
    m_computer->addPlugin(m_rec, 1);
    records.insert(3, recordIn(m_rec));
    m_computer->setRecords(records);
    QCOMPARE(m_computer->run(words("--UNINSTALL")), 0);
    QVERIFY(!QFileInfo::exists(file(m_rec)));
    QCOMPARE(m_computer->records(), foreign);
}

void TestUnattendedBadInput::ignoresRecordsOfWrongTypes_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::newRow("a name that is a number")
        << QByteArray(R"({"name": 5, "path": "%", "files": []})");
    QTest::newRow("no name") << QByteArray(R"({"path": "%", "files": []})");
    QTest::newRow("a path that is a number") << QByteArray(R"({"name": "Rec", "path": 7})");
    QTest::newRow("no path") << QByteArray(R"({"name": "Rec"})");
    QTest::newRow("a path that is a list") << QByteArray(R"({"name": "Rec", "path": ["%"]})");
    QTest::newRow("a file that is a number")
        << QByteArray(R"({"name": "Rec", "path": "%", "files": [5]})");
    QTest::newRow("a file that is null")
        << QByteArray(R"({"name": "Rec", "path": "%", "files": [null]})");
    QTest::newRow("a file without a name")
        << QByteArray(R"({"name": "Rec", "path": "%", "files": [""]})");
}

void TestUnattendedBadInput::ignoresRecordsOfWrongTypes()
{
    QFETCH(QByteArray, record);
    m_computer->addPlugin(m_rec, 1);
    record.replace("%", m_computer->folder(m_rec).toUtf8());
    m_computer->write(m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping")),
                      '[' + record + ']');
    Disk expected = m_computer->disk();
    const QJsonArray records = m_computer->records();
    for (const char *argument : {"--UNINSTALL", "--REPAIR"}) {
        QCOMPARE(m_computer->run(words(argument)), 0);
        QCOMPARE(m_computer->said(), QStringList());
    }
    m_computer->finish(&expected, records);
    const QString mapping = m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping"));
    put(&expected, mapping, '[' + record + ']');
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedBadInput::replacesAnUnreadableRecord_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("cut off") << QByteArray(R"([{"name": "Rec", )");
    QTest::newRow("an object") << QByteArray(R"({"name": "Rec"})");
    QTest::newRow("not text") << QByteArray("\xFF\xFE\x00\x01", 4);
    QTest::newRow("only a line end") << QByteArray("\n");
}

void TestUnattendedBadInput::replacesAnUnreadableRecord()
{
    QFETCH(const QByteArray, content);
    const QJsonObject entry = m_computer->entry(m_det, 1);
    m_computer->setCatalogue({entry});
    m_computer->addSimulator(m_det);
    m_computer->write(m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping")), content);
    Disk expected = m_computer->disk();
    m_computer->putPlugin(&expected, entry);
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList());
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedBadInput::keepsAFileInPlaceOfAFolder()
{
    m_computer->write(QStringLiteral("sims/Rec"), "precious");
    const QJsonObject record{{QStringLiteral("name"), m_rec},
                             {QStringLiteral("path"), m_computer->folder(m_rec)}};
    m_computer->setRecords({record});
    QCOMPARE(m_computer->run(words("--REPAIR")), 2);
    QCOMPARE(m_computer->said().size(), 1);
    QVERIFY(m_computer->said().constFirst().endsWith(QLatin1String("\r\n\r\nRec: Not updated")));
    m_computer->setRecords({record});
    QCOMPARE(m_computer->run(words("--UNINSTALL")), 0);
    QCOMPARE(readFile(m_computer->folder(m_rec)), QByteArray("precious"));
    QCOMPARE(m_computer->records(), QJsonArray());
}

// Both messages name the file and have no line end; the plugin is installed nevertheless.
void TestUnattendedBadInput::reportsAFolderInPlaceOfTheRecord()
{
    m_computer->setCatalogue({m_computer->entry(m_det, 1)});
    m_computer->addSimulator(m_det);
    const QString record = m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping"));
    QVERIFY(QDir().mkpath(m_computer->absolute(record)));
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(
        m_computer->said(),
        QStringList(
            QStringLiteral(
                "Uninstall: Quillmont Orbwell was not able to uninstall your Orbwell plugin from "
                "Det.\r\n\r\nPlease see the list below for details:\r\n\r\n"
                "The file '%1' is empty. Quillmont Orbwell installer was not able to change your "
                "configuration.Unable to write configuration to file '%1'. Please check if you "
                "have permission to that file.")
                .arg(QString(m_computer->absolute(record))
                         .replace(QLatin1String("share/"), QLatin1String("share//")))));
    QCOMPARE(readFile(file(m_det)), QByteArray("about"));
    QVERIFY(QFileInfo(m_computer->absolute(record)).isDir());
}

void TestUnattendedBadInput::keepsAMalformedConfiguration_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("cut off") << othersConfiguration().chopped(10);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not XML") << QByteArray("[Main]\r\nUser Objects=Airplane\r\n");
    QTest::newRow("two roots") << othersConfiguration() + "<SimBase.Document/>";
    QTest::newRow("an unescaped ampersand") << othersConfiguration().replace("Somebody's", "A & B");
}

void TestUnattendedBadInput::keepsAMalformedConfiguration()
{
    QFETCH(const QByteArray, content);
    const QJsonObject entry = m_computer->entry(m_det, 0);
    m_computer->setCatalogue({entry});
    m_computer->addSimulator(m_det);
    const QString configuration = m_computer->configuration(m_det);
    m_computer->write(configuration, content);
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run(words("--REPAIR")), 0);
    QCOMPARE(m_computer->said().size(), 1);
    QVERIFY(m_computer->said().constFirst().endsWith(QLatin1String("\r\n\r\nDet: Updated")));
    m_computer->putPlugin(&expected, entry);
    put(&expected, backupOf(configuration, "uninstallation"), content);
    put(&expected, backupOf(configuration, "installation"), content);
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedBadInput::worksWithAFolderInPlaceOfTheConfiguration()
{
    const QJsonObject entry = m_computer->entry(m_det, 0);
    m_computer->setCatalogue({entry});
    m_computer->addSimulator(m_det);
    m_computer->write(m_computer->configuration(m_det) + QLatin1String("/kept"), "kept");
    Disk expected = m_computer->disk();
    QCOMPARE(m_computer->run(words("--REPAIR")), 0);
    m_computer->putPlugin(&expected, entry);
    m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

QTEST_GUILESS_MAIN(TestUnattendedBadInput)
#include "tst_UnattendedBadInput.moc"
