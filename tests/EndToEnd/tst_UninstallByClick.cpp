#include "tests/EndToEnd/Computer.h"
#include "tests/support/LaunchDocuments.h"

#include <QtTest>

using namespace Tests;

class TestUninstallByClick : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void removesThePlugin_data();
    void removesThePlugin();
    void namesTheFileThatCouldNotBeRemoved();
    void scansOnceAfterwards();

private:
    void start(int type);
    SeenWindow uninstall();

    const QString m_skylark = QStringLiteral("Skylark");
    const QString m_kestrel = QStringLiteral("Kestrel");
    QScopedPointer<Computer> m_computer;
    Program *m_program = nullptr;
};

void TestUninstallByClick::init()
{
    m_computer.reset(new Computer);
    m_program = &m_computer->program();
}

void TestUninstallByClick::cleanup()
{
    m_computer.reset();
}

// Two simulators with the plugin.
void TestUninstallByClick::start(int type)
{
    const QJsonObject skylark = m_computer->entry(m_skylark, type);
    const QJsonObject kestrel = m_computer->entry(m_kestrel, 1);
    m_computer->setCatalogue({skylark, kestrel});
    m_computer->addSimulator(m_skylark);
    m_computer->addPlugin(m_skylark, type);
    m_computer->addPlugin(m_kestrel, 1);
    m_computer->setRecords({m_computer->recordFor(skylark), m_computer->recordFor(kestrel)});
    if (type == 0)
        m_computer->write(m_computer->configuration(m_skylark), ourConfiguration());
}

SeenWindow TestUninstallByClick::uninstall()
{
    m_program->start();
    m_program->window();
    m_program->pressAction(m_skylark);
    return m_program->box();
}

void TestUninstallByClick::removesThePlugin_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("with a configuration file") << 0;
    QTest::newRow("with plugin files only") << 1;
}

void TestUninstallByClick::removesThePlugin()
{
    QFETCH(const int, type);
    start(type);
    Disk expected = m_computer->disk();
    const SeenWindow box = uninstall();
    QCOMPARE(box.title, QStringLiteral("Uninstall"));
    QCOMPARE(box.text,
             QStringLiteral("Quillmont Orbwell for Skylark has been uninstalled successfully."));
    QCOMPARE(box.icon, QStringLiteral("Information"));
    QCOMPARE(box.buttonTexts(), QStringList(QStringLiteral("OK")));
    QCOMPARE(box.parent, QString());
    QCOMPARE(m_program->row(m_skylark).icon, QStringLiteral("check-grey"));
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QCOMPARE(m_program->row(m_skylark).action.text, QStringLiteral("Install Orbwell"));
    QCOMPARE(m_program->row(m_kestrel).action.text, QStringLiteral("Uninstall Orbwell"));

    const QString configuration = m_computer->configuration(m_skylark);
    if (type == 0) {
        put(&expected, configuration, othersConfiguration());
        put(&expected, backupOf(configuration, "uninstallation"), ourConfiguration());
    }
    takeOut(&expected,
            type == 0 ? QStringLiteral("sims/Skylark/Gauges/QuillmontOrbwell_64.dll")
                      : QStringLiteral("sims/Skylark/Resources/plugins/Orbwell/"));
    m_computer->finish(&expected, {m_computer->recordFor(m_computer->entry(m_kestrel, 1))});
    takeOut(&expected, m_computer->data(QStringLiteral("Quillmont/Orbwell/.path")));
    QCOMPARE(difference(m_computer->disk(), expected), QString());
}

void TestUninstallByClick::namesTheFileThatCouldNotBeRemoved()
{
    start(1);
    const QString target = QStringLiteral("Resources/plugins/Orbwell/about.txt");
    QFile::remove(m_computer->folder(m_skylark) + u'/' + target);
    m_computer->write(QLatin1String("sims/Skylark/") + target + QLatin1String("/deep"), "kept");
    const SeenWindow box = uninstall();
    QCOMPARE(box.title, QStringLiteral("Uninstall"));
    QCOMPARE(box.icon, QStringLiteral("Information"));
    QCOMPARE(box.text,
             QStringLiteral("Quillmont Orbwell was not able to uninstall your Orbwell plugin from "
                            "Skylark.\r\n\r\nPlease see the list below for details:\r\n\r\n"
                            "Unable to remove file '%1/%2' from Skylark. Please remove the file "
                            "manually.\r\n")
                 .arg(m_computer->folder(m_skylark), target));
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QCOMPARE(m_program->row(m_skylark).action.text, QStringLiteral("Install Orbwell"));
    QCOMPARE(m_computer->records(),
             QJsonArray{m_computer->recordFor(m_computer->entry(m_kestrel, 1))});
}

void TestUninstallByClick::scansOnceAfterwards()
{
    start(1);
    uninstall();
    const QByteArray line = "folder: " + m_computer->folder(m_skylark).toUtf8() + '\n';
    m_program->press(QStringLiteral("OK"));
    m_program->window();
    QCOMPARE(m_program->standardError().count(line), 2); // and at the start
    QVERIFY(!m_program->isBusy());
}

QTEST_GUILESS_MAIN(TestUninstallByClick)
#include "tst_UninstallByClick.moc"
