#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

using namespace Tests;

// The messages and exit status of a run when something fails or there is nothing to do.
class TestUnattendedFailures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void doesNothingWithoutACatalogue_data();
    void doesNothingWithoutACatalogue();
    void succeedsWithoutASimulator_data();
    void succeedsWithoutASimulator();
    void reportsAFileThatCannotBeRemoved_data();
    void reportsAFileThatCannotBeRemoved();
    void reportsASimulatorAsNotUpdated();
    void reportsARecordedSimulatorAsNotUpdated();
    void showsAFailedUpdateBeforeTheNextOne();
    void failsIfOneSimulatorOfTwoFails();

private:
    QString cannotRemove(const QString &simulator, const QString &lines) const;
    QString installWithoutPayload() const;

    const QString m_det = QStringLiteral("Det");
    const QString m_rec = QStringLiteral("Rec");
    const QString m_module = QStringLiteral("/Gauges/QuillmontOrbwell_64.dll");
    QScopedPointer<Computer> m_computer;
};

static QString updated(const char *lines)
{
    return QStringLiteral("Plugins updated: Quillmont Orbwell has updated plugins on your "
                          "computer.\r\n\r\nPlease see the list below for details:\r\n\r\n%1")
        .arg(QLatin1String(lines));
}

void TestUnattendedFailures::init()
{
    m_computer.reset(new Computer);
}

void TestUnattendedFailures::cleanup()
{
    m_computer.reset();
}

QString TestUnattendedFailures::cannotRemove(const QString &simulator, const QString &lines) const
{
    return QStringLiteral("Uninstall: Quillmont Orbwell was not able to uninstall your Orbwell "
                          "plugin from %1.\r\n\r\nPlease see the list below for details:\r\n\r\n%2")
        .arg(simulator, lines);
}

void TestUnattendedFailures::doesNothingWithoutACatalogue_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("install") << words("--INSTALL") << 2;
    QTest::newRow("quiet install") << quietInstallation() << 2;
    QTest::newRow("repair") << words("--REPAIR") << 0;
    QTest::newRow("uninstall") << words("--UNINSTALL") << 0;
}

// Only an installation writes the launcher path.
void TestUnattendedFailures::doesNothingWithoutACatalogue()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    const QJsonObject entry = m_computer->hiddenEntry(m_rec, 0);
    m_computer->setCatalogue({entry});
    QVERIFY(QFile::remove(m_computer->program().folder() + QLatin1String("/flightsims.json")));
    m_computer->addPlugin(m_rec, 0);
    m_computer->write(m_computer->configuration(m_rec), ourConfiguration());
    m_computer->setRecords({m_computer->recordFor(entry)});
    Disk expected = m_computer->disk();

    QCOMPARE(m_computer->run(arguments), status);
    QCOMPARE(m_computer->said(), QStringList());
    if (status == 2)
        m_computer->finish(&expected, {m_computer->recordFor(entry)});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedFailures::succeedsWithoutASimulator_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("emptyCatalogue");
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("boxes");
    const QString settings = QStringLiteral("Quillmont Orbwell Settings: ");
    QTest::newRow("install, empty catalogue")
        << words("--INSTALL") << true << 2
        << QStringList(settings
                       + QLatin1String("There are no other simulator found for install Orbwell "
                                       "plugin."));
    QTest::newRow("install, none found")
        << words("--INSTALL") << false << 2
        << QStringList(settings + QLatin1String("Orbwell plugin is installed in all simulators."));
    QTest::newRow("quiet install") << quietInstallation() << false << 2 << QStringList();
    QTest::newRow("quiet install, empty catalogue")
        << quietInstallation() << true << 2 << QStringList();
    QTest::newRow("repair") << words("--REPAIR") << false << 0 << QStringList();
    QTest::newRow("uninstall") << words("--UNINSTALL") << false << 0 << QStringList();
}

void TestUnattendedFailures::succeedsWithoutASimulator()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const bool, emptyCatalogue);
    QFETCH(const int, status);
    QFETCH(const QStringList, boxes);
    m_computer->setCatalogue(emptyCatalogue ? QJsonArray()
                                            : QJsonArray{m_computer->entry(m_det, 0)});
    QCOMPARE(m_computer->run(arguments), status);
    QCOMPARE(m_computer->said(), boxes);
    Disk expected;
    m_computer->finish(&expected, {});
    put(&expected, m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping")), {});
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUnattendedFailures::reportsAFileThatCannotBeRemoved_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("summary");
    QTest::newRow("uninstall") << words("--UNINSTALL") << QString();
    QTest::newRow("repair") << words("--REPAIR") << updated("Det: Updated\nRec: Not updated");
}

// There is a folder with content in place of the file. It is kept; the other simulator is processed
// as usual.
void TestUnattendedFailures::reportsAFileThatCannotBeRemoved()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, summary);
    const QJsonObject rec = m_computer->hiddenEntry(m_rec, 0);
    const QJsonObject det = m_computer->entry(m_det, 1);
    m_computer->setCatalogue({rec, det});
    m_computer->addSimulator(m_det);
    m_computer->write(QLatin1String("sims/Rec") + m_module + QLatin1String("/deep/down"), "kept");
    m_computer->setRecords({m_computer->recordFor(rec)});

    QCOMPARE(m_computer->run(arguments), 2);
    const QString target = m_computer->folder(m_rec) + m_module;
    QStringList boxes{cannotRemove(
        m_rec,
        QStringLiteral("Unable to remove file '%1' from Rec. Please remove the file manually.\r\n")
            .arg(target))};
    if (!summary.isEmpty())
        boxes.append(summary);
    QCOMPARE(m_computer->said(), boxes);
    QCOMPARE(m_computer->boxes().constFirst().icon, QStringLiteral("Information"));
    QCOMPARE(m_computer->boxes().constFirst().parent, QString());
    QCOMPARE(readFile(target + QLatin1String("/deep/down")), QByteArray("kept"));
    QCOMPARE(m_computer->records().at(0).toObject(), m_computer->recordFor(det));
    QCOMPARE(m_computer->records().size(), summary.isEmpty() ? 1 : 2);
}

// Two scans try to install as well and report failures.
void TestUnattendedFailures::reportsASimulatorAsNotUpdated()
{
    const QJsonObject entry = m_computer->entry(m_det, 0);
    m_computer->setCatalogue({entry});
    const QString source
        = m_computer->program().folder() + QLatin1String("/plugins/FSX/QuillmontOrbwell_64.dll");
    QVERIFY(QFile::remove(source));
    m_computer->addSimulator(m_det);
    const QString line
        = QStringLiteral("Unable to copy '%1' to '%2'. Please check if you have "
                         "permission to folder '%3/'.\r\n")
              .arg(source, m_computer->folder(m_det) + m_module, m_computer->folder(m_det));

    QCOMPARE(m_computer->run(words("--REPAIR")), 2);
    QCOMPARE(
        m_computer->said(),
        QStringList(
            {cannotRemove(m_det, line), cannotRemove(m_det, line), updated("Det: Not updated")}));
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList(cannotRemove(m_det, line)));
}

// The plugin is in a simulator that only the record knows, so that only the installation itself can
// fail. Returns its error lines.
QString TestUnattendedFailures::installWithoutPayload() const
{
    const QString source
        = m_computer->program().folder() + QLatin1String("/plugins/FSX/QuillmontOrbwell_64.dll");
    QFile::remove(source);
    m_computer->addPlugin(m_rec, 0);
    return QStringLiteral("Unable to copy '%1' to '%2'. Please check if you have permission to "
                          "folder '%3/'.\r\n")
        .arg(source, m_computer->folder(m_rec) + m_module, m_computer->folder(m_rec));
}

void TestUnattendedFailures::reportsARecordedSimulatorAsNotUpdated()
{
    const QJsonObject rec = m_computer->hiddenEntry(m_rec, 0);
    m_computer->setCatalogue({rec});
    m_computer->setRecords({m_computer->recordFor(rec)});
    installWithoutPayload();

    QCOMPARE(m_computer->run(words("--REPAIR")), 2);
    QCOMPARE(m_computer->said(), QStringList(updated("Rec: Not updated")));
}

// The error lines of one installation appear with the next removal, which fails for that reason.
void TestUnattendedFailures::showsAFailedUpdateBeforeTheNextOne()
{
    const QString other = QStringLiteral("Other");
    const QJsonObject rec = m_computer->hiddenEntry(m_rec, 0);
    const QJsonObject last = m_computer->hiddenEntry(other, 1);
    m_computer->setCatalogue({last, rec});
    m_computer->setRecords({m_computer->recordFor(rec), m_computer->recordFor(last)});
    m_computer->addPlugin(other, 1);
    const QString line = installWithoutPayload();

    QCOMPARE(m_computer->run(words("--REPAIR")), 2);
    QCOMPARE(m_computer->said(),
             QStringList({cannotRemove(other, line), updated("Rec: Not updated\nOther: Updated")}));
}

void TestUnattendedFailures::failsIfOneSimulatorOfTwoFails()
{
    const QString other = QStringLiteral("Other");
    const QJsonObject rec = m_computer->hiddenEntry(m_rec, 0);
    const QJsonObject last = m_computer->hiddenEntry(other, 1);
    m_computer->setCatalogue({last, rec});
    m_computer->write(QLatin1String("sims/Rec") + m_module + QLatin1String("/deep"), "kept");
    m_computer->addPlugin(other, 1);
    m_computer->setRecords({m_computer->recordFor(rec), m_computer->recordFor(last)});

    QCOMPARE(m_computer->run(words("--UNINSTALL")), 2);
    QCOMPARE(m_computer->boxes().size(), 1);
    QCOMPARE(m_computer->records(), QJsonArray());
    QVERIFY(!QFileInfo::exists(m_computer->folder(other)
                               + QLatin1String("/Resources/plugins/Orbwell")));
}

QTEST_GUILESS_MAIN(TestUnattendedFailures)
#include "tst_UnattendedFailures.moc"
