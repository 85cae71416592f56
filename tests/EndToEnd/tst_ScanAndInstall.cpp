#include "tests/EndToEnd/Computer.h"
#include "tests/support/LaunchDocuments.h"

#include <QtTest>

using namespace Tests;

// What "Scan & Install" does with simulators with and without the plugin.
class TestScanAndInstall : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void scansAfterEachInstallationAndShowsOneBox();
    void installsIntoAllSimulators();
    void reportsThatThereIsNothingToInstall();
    void reportsThatThereIsNoSimulator();

private:
    SeenWindow scanAndInstall();

    const QStringList m_names{
        QStringLiteral("Skylark"), QStringLiteral("Kestrel"), QStringLiteral("Plover")};
    QScopedPointer<Computer> m_computer;
    Program *m_program = nullptr;
    QJsonArray m_catalogue;
};

void TestScanAndInstall::init()
{
    m_computer.reset(new Computer);
    m_program = &m_computer->program();
    m_catalogue = {};
    for (int i = 0; i < m_names.size(); ++i) {
        m_computer->addSimulator(m_names.at(i));
        m_catalogue.append(m_computer->entry(m_names.at(i), i % 2));
    }
    m_computer->setCatalogue(m_catalogue);
}

void TestScanAndInstall::cleanup()
{
    m_computer.reset();
}

SeenWindow TestScanAndInstall::scanAndInstall()
{
    m_program->start();
    m_program->window();
    m_program->press(QStringLiteral("Scan & Install"));
    return m_program->box();
}

void TestScanAndInstall::scansAfterEachInstallationAndShowsOneBox()
{
    const SeenWindow box = scanAndInstall();
    QCOMPARE(box.title, QStringLiteral("Quillmont Orbwell Settings"));
    QCOMPARE(box.text,
             QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to  "
                            "Plover Kestrel Skylark."));
    QCOMPARE(box.icon, QStringLiteral("Information"));
    QCOMPARE(box.buttonTexts(), QStringList(QStringLiteral("OK")));
    QCOMPARE(box.parent, QString());
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    const QByteArray log = m_program->standardError();
    for (const QString &name : m_names) {
        const QByteArray line = "folder: " + m_computer->folder(name).toUtf8() + '\n';
        QCOMPARE(log.count(line), 5); // at the start, for the button, and after each of three
    }
}

void TestScanAndInstall::installsIntoAllSimulators()
{
    Disk expected = m_computer->disk();
    scanAndInstall();
    for (const SeenRow &row : m_program->rows())
        QCOMPARE(row.icon, QStringLiteral("check-green"));
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QJsonArray records;
    for (const QJsonValue entry : qAsConst(m_catalogue)) {
        m_computer->putPlugin(&expected, entry.toObject());
        records.prepend(m_computer->recordFor(entry.toObject()));
    }
    put(&expected, m_computer->configuration(m_names.at(0)), launchDocument());
    put(&expected, m_computer->configuration(m_names.at(2)), launchDocument());
    m_computer->finish(&expected, records);
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestScanAndInstall::reportsThatThereIsNothingToInstall()
{
    for (int i = 0; i < m_names.size(); ++i)
        m_computer->addPlugin(m_names.at(i), i % 2);
    QCOMPARE(scanAndInstall().text,
             QStringLiteral("Orbwell plugin is installed in all simulators."));
    QCOMPARE(m_computer->records().size(), 3);
}

void TestScanAndInstall::reportsThatThereIsNoSimulator()
{
    m_computer->setCatalogue({});
    QCOMPARE(scanAndInstall().text,
             QStringLiteral("There are no other simulator found for install Orbwell plugin."));
}

QTEST_GUILESS_MAIN(TestScanAndInstall)
#include "tst_ScanAndInstall.moc"
