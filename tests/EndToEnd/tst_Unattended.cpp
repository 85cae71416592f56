#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/Simulators.h"
#include "tests/support/LaunchDocuments.h"

#include <QtTest>

using namespace Tests;

// What each run does with two simulators: the scan finds "Det", which lacks the plugin; only the
// record knows "Rec", which has all its files.
class TestUnattended : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void installs_data() { addTypes(); }

    void installs();

    void installsQuietly_data() { addTypes(); }

    void installsQuietly();

    void repairs_data() { addTypes(); }

    void repairs();

    void uninstalls_data() { addTypes(); }

    void uninstalls();

private:
    static void addTypes();
    void prepare(int type);
    void hasOneBox(const char *title, const QString &text) const;

    const QString m_det = QStringLiteral("Det");
    const QString m_rec = QStringLiteral("Rec");
    QScopedPointer<Computer> m_computer;
    QJsonObject m_foundEntry;
    QJsonObject m_recordedEntry;
    Disk m_expected;
};

void TestUnattended::init()
{
    m_computer.reset(new Computer);
}

void TestUnattended::cleanup()
{
    m_computer.reset();
}

void TestUnattended::addTypes()
{
    QTest::addColumn<int>("type");
    QTest::newRow("with a configuration file") << 0;
    QTest::newRow("with plugin files only") << 1;
}

void TestUnattended::prepare(int type)
{
    m_foundEntry = m_computer->entry(m_det, type);
    m_recordedEntry = m_computer->hiddenEntry(m_rec, type);
    m_computer->setCatalogue({m_recordedEntry, m_foundEntry});
    m_computer->addSimulator(m_det);
    m_computer->addPlugin(m_rec, type);
    m_computer->setRecords({m_computer->recordFor(m_recordedEntry)});
    if (type == 0) {
        m_computer->write(m_computer->configuration(m_det), othersConfiguration());
        m_computer->write(m_computer->configuration(m_rec), ourConfiguration());
    }
    m_expected = m_computer->disk();
    m_computer->putPlugin(&m_expected, m_foundEntry);
    if (type == 0) {
        const QString file = m_computer->configuration(m_det);
        put(&m_expected, file, ourConfiguration());
        put(&m_expected, backupOf(file, "uninstallation"), othersConfiguration());
        put(&m_expected, backupOf(file, "installation"), othersConfiguration());
    }
}

void TestUnattended::hasOneBox(const char *title, const QString &text) const
{
    QCOMPARE(m_computer->boxes().size(), 1);
    const SeenWindow &box = m_computer->boxes().constFirst();
    QCOMPARE(box.title, QLatin1String(title));
    QCOMPARE(box.text, text);
    QCOMPARE(box.icon, QStringLiteral("Information"));
    QCOMPARE(box.parent, QString());
    QCOMPARE(box.buttonTexts(), QStringList(QStringLiteral("OK")));
}

void TestUnattended::installs()
{
    QFETCH(const int, type);
    prepare(type);
    QCOMPARE(m_computer->run({QStringLiteral("--INSTALL")}), 2);
    hasOneBox("Quillmont Orbwell Settings",
              QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to  "
                             "Det."));
    m_computer->finish(
        &m_expected, {m_computer->recordFor(m_foundEntry), m_computer->recordFor(m_recordedEntry)});
    QCOMPARE(difference(m_computer->disk(), m_expected), QString());
}

void TestUnattended::installsQuietly()
{
    QFETCH(const int, type);
    prepare(type);
    QCOMPARE(m_computer->run(quietInstallation()), 2);
    QCOMPARE(m_computer->said(), QStringList());
    m_computer->finish(
        &m_expected, {m_computer->recordFor(m_foundEntry), m_computer->recordFor(m_recordedEntry)});
    QCOMPARE(difference(m_computer->disk(), m_expected), QString());
}

void TestUnattended::repairs()
{
    QFETCH(const int, type);
    prepare(type);
    QCOMPARE(m_computer->run({QStringLiteral("--REPAIR")}), 0);
    hasOneBox("Plugins updated",
              QStringLiteral("Quillmont Orbwell has updated plugins on your computer.\r\n\r\n"
                             "Please see the list below for details:\r\n\r\n"
                             "Det: Updated\nRec: Updated"));
    m_computer->putPlugin(&m_expected, m_recordedEntry);
    if (type == 0) {
        const QString file = m_computer->configuration(m_rec);
        put(&m_expected, backupOf(file, "uninstallation"), ourConfiguration());
        put(&m_expected, backupOf(file, "installation"), othersConfiguration());
    }
    m_computer->finish(
        &m_expected, {m_computer->recordFor(m_foundEntry), m_computer->recordFor(m_recordedEntry)});
    QCOMPARE(difference(m_computer->disk(), m_expected), QString());
}

// Each removal is followed by a scan that installs into the simulators that it finds.
void TestUnattended::uninstalls()
{
    QFETCH(const int, type);
    prepare(type);
    QCOMPARE(m_computer->run({QStringLiteral("--UNINSTALL")}), 0);
    QCOMPARE(m_computer->said(), QStringList());
    if (type == 0) {
        const QString file = m_computer->configuration(m_rec);
        put(&m_expected, file, othersConfiguration());
        put(&m_expected, backupOf(file, "uninstallation"), ourConfiguration());
        takeOut(&m_expected, QStringLiteral("sims/Rec/Gauges/"));
    } else {
        takeOut(&m_expected, QStringLiteral("sims/Rec/Resources/plugins/Orbwell/"));
    }
    m_computer->finish(&m_expected, {m_computer->recordFor(m_foundEntry)});
    QCOMPARE(difference(m_computer->disk(), m_expected), QString());
}

QTEST_GUILESS_MAIN(TestUnattended)
#include "tst_Unattended.moc"
