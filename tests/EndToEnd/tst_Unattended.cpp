#include "tests/EndToEnd/Simulators.h"
#include "tests/support/Files.h"
#include "tests/support/Program.h"
#include "tests/support/Sandbox.h"

#include <QtTest>

using namespace Tests;

class TestUnattended : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void installsEverywhereAndEndsWithTwo();
    void repairsAndListsWhatItUpdated();
    void endsByItselfWithoutABox();
    void takesItsOwnNameForASwitchToo();

private:
    bool isInstalled(const QString &simulator) const;

    const QString m_skylark = QStringLiteral("Skylark");
    const QString m_kestrel = QStringLiteral("Kestrel");
    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Program> m_program;
};

void TestUnattended::init()
{
    m_sandbox.reset(new Sandbox);
    m_program.reset(new Program(*m_sandbox));
    for (const QString &simulator : {m_skylark, m_kestrel})
        QDir().mkpath(m_sandbox->path(simulator));
    place(
        *m_program,
        {pluginFolderEntry(m_kestrel, m_sandbox->path(m_kestrel)),
         pluginFolderEntry(m_skylark, m_sandbox->path(m_skylark)),
         pluginFolderEntry(QStringLiteral("Plover"), m_sandbox->path(QStringLiteral("nowhere")))});
}

void TestUnattended::cleanup()
{
    m_program.reset();
    m_sandbox.reset();
}

bool TestUnattended::isInstalled(const QString &simulator) const
{
    return QFileInfo::exists(
        m_sandbox->path(simulator + QStringLiteral("/Resources/plugins/Orbwell/about.txt")));
}

void TestUnattended::installsEverywhereAndEndsWithTwo()
{
    m_program->start({QStringLiteral("--install")});
    const SeenWindow box = m_program->box();
    QCOMPARE(box.title, QStringLiteral("Quillmont Orbwell Settings"));
    QCOMPARE(box.text,
             QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to  "
                            "Skylark Kestrel."));
    QCOMPARE(m_program->windows().size(), 1);
    m_program->press(QStringLiteral("OK"));
    QCOMPARE(m_program->exitStatus(), 2);
    QVERIFY(isInstalled(m_skylark));
    QVERIFY(isInstalled(m_kestrel));
}

void TestUnattended::repairsAndListsWhatItUpdated()
{
    m_program->start({QStringLiteral("--REPAIR")});
    const SeenWindow box = m_program->box();
    QCOMPARE(box.title, QStringLiteral("Plugins updated"));
    QCOMPARE(box.text,
             QStringLiteral("Quillmont Orbwell has updated plugins on your computer.\r\n\r\n"
                            "Please see the list below for details:\r\n\r\n"
                            "Skylark: Updated\nKestrel: Updated"));
    m_program->press(QStringLiteral("OK"));
    QCOMPARE(m_program->exitStatus(), 0);
    QVERIFY(isInstalled(m_skylark));
}

// A switch "1" keeps the installation quiet.
void TestUnattended::endsByItselfWithoutABox()
{
    m_program->start({QStringLiteral("--INSTALL"), QStringLiteral("1")});
    QCOMPARE(m_program->exitStatus(), 2);
    QVERIFY(isInstalled(m_skylark));
    m_program->start({QStringLiteral("--UNINSTALL")});
    QCOMPARE(m_program->exitStatus(), 0);
}

void TestUnattended::takesItsOwnNameForASwitchToo()
{
    m_program->setCalledAs(QStringLiteral("--Uninstall"));
    m_program->start();
    QCOMPARE(m_program->exitStatus(), 0);
    QVERIFY(m_program->standardError().contains("Scanning folders..."));
}

QTEST_GUILESS_MAIN(TestUnattended)
#include "tst_Unattended.moc"
