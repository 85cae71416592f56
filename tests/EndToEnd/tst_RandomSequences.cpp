#include "tests/EndToEnd/Bookkeeping.h"
#include "tests/EndToEnd/Computer.h"
#include "tests/EndToEnd/DoctorsPlan.h"
#include "tests/support/Files.h"
#include "tests/support/LaunchDocuments.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <random>

using namespace Tests;

// Users and other programs act in any order: each click leaves exactly the expected files on disk,
// as orbwell-doctor predicted.
class TestRandomSequences : public QObject
{
    Q_OBJECT

private slots:
    void leaveTheExpectedFilesOnDisk_data();
    void leaveTheExpectedFilesOnDisk();
    void cleanupTestCase();

private:
    void prepare();
    void step();
    void pressRow(const QString &simulator);
    void scanAndInstall();
    void loseAPluginFile(const QString &simulator);
    void putBesideAPluginFile(const QString &simulator, const char *name);
    void addSomebodysEntry(const QString &simulator);
    void loseTheConfiguration(const QString &simulator);
    void damageTheRecord();
    void write(const QString &path, const QByteArray &content);
    void answer(const QString &title, const QString &text);
    void check();
    void checkBackups();
    void checkRows();

    int dice(int sides) { return static_cast<int>(m_random() % static_cast<unsigned>(sides)); }

    std::mt19937 m_random;
    QScopedPointer<Computer> m_computer;
    QScopedPointer<Bookkeeping> m_books;
    Program *m_program = nullptr;
    QStringList m_steps;
    int m_sequences = 0;
    int m_plans = 0;
};

void TestRandomSequences::leaveTheExpectedFilesOnDisk_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 32; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestRandomSequences::leaveTheExpectedFilesOnDisk()
{
    QFETCH(const unsigned, seed);
    m_random.seed(seed);
    ++m_sequences;
    prepare();
    m_program->start();
    m_program->window();
    m_books->change(m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping")), {});
    for (int i = 0; i < 16 && !QTest::currentTestFailed(); ++i) {
        step();
        check();
    }
    if (QTest::currentTestFailed())
        qWarning("after: %s", qUtf8Printable(m_steps.join(QLatin1String(", "))));
}

// "Wren" shares the configuration of "Skylark" but adds no entry, "Plover" has none yet.
void TestRandomSequences::prepare()
{
    m_computer.reset(); // otherwise it would restore the environment after the next one has set it
    m_computer.reset(new Computer);
    m_program = &m_computer->program();
    m_steps.clear();
    const QString skylark = QStringLiteral("Skylark");
    const QString wren = QStringLiteral("Wren");
    QJsonObject shared = m_computer->entry(skylark, 0);
    QJsonObject config = shared.value(QLatin1String("config")).toObject();
    QJsonObject removal = config.value(QLatin1String("remove")).toObject();
    removal.insert(QStringLiteral("files"),
                   QJsonArray{QJsonObject{{QStringLiteral("root"), QStringLiteral("-1")},
                                          {QStringLiteral("path"), QStringLiteral("x.cfg")}}});
    config.insert(QStringLiteral("remove"), removal);
    QJsonObject outside = m_computer->entry(wren, 1);
    outside.insert(QStringLiteral("type"), 0);
    outside.insert(QStringLiteral("root"), QStringLiteral("1"));
    outside.insert(QStringLiteral("config"), config);
    const QJsonArray catalogue{shared,
                               m_computer->entry(QStringLiteral("Plover"), 0),
                               m_computer->entry(QStringLiteral("Kestrel"), 1),
                               outside};
    m_computer->setCatalogue(catalogue);
    for (const char *name : {"Skylark", "Plover", "Kestrel", "Wren"})
        m_computer->addSimulator(QLatin1String(name));
    m_computer->write(m_computer->configuration(skylark), othersConfiguration());
    m_books.reset(new Bookkeeping(*m_computer, catalogue));
}

void TestRandomSequences::step()
{
    const QString simulator = m_books->simulators().at(dice(m_books->simulators().size()));
    switch (dice(12)) {
    case 0:
        return scanAndInstall();
    case 1:
    case 2:
        return loseAPluginFile(simulator);
    case 3:
        return putBesideAPluginFile(simulator, dice(2) == 0 ? ".hidden" : "visible");
    case 4:
        return addSomebodysEntry(simulator);
    case 5:
        return dice(2) == 0 ? loseTheConfiguration(simulator) : damageTheRecord();
    case 6:
        return write(QStringLiteral("sims/Wren\\x.cfg"), "extra");
    default:
        return pressRow(simulator);
    }
}

void TestRandomSequences::pressRow(const QString &simulator)
{
    const bool wasInstalled = m_books->isInstalled(simulator);
    m_steps.append((wasInstalled ? QLatin1String("uninstall ") : QLatin1String("install "))
                   + simulator);
    const QString what = QLatin1String(wasInstalled ? "uninstall" : "install");
    const Disk planned = plannedDisk(*m_computer, doctorsPlan(*m_computer, what, simulator));
    ++m_plans;
    m_program->pressAction(simulator);
    if (wasInstalled) {
        m_books->uninstall(simulator);
        answer(QStringLiteral("Uninstall"),
               QStringLiteral("Quillmont Orbwell for %1 has been uninstalled successfully.")
                   .arg(simulator));
    } else {
        m_books->install(simulator);
        answer(QStringLiteral("Installation complete"),
               QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to %1.")
                   .arg(simulator));
    }
    checkRows();
    QCOMPARE(difference(m_computer->disk(), planned), QString());
}

void TestRandomSequences::scanAndInstall()
{
    m_steps.append(QStringLiteral("scan and install"));
    m_program->press(QStringLiteral("Scan & Install"));
    const QStringList names = m_books->installEverywhere();
    answer(
        QStringLiteral("Quillmont Orbwell Settings"),
        names.isEmpty()
            ? QStringLiteral("Orbwell plugin is installed in all simulators.")
            : QStringLiteral("Quillmont Orbwell have successfully installed Orbwell plugin to  %1.")
                  .arg(names.join(u' ')));
    if (!names.isEmpty())
        checkRows();
}

// The file may already be missing.
void TestRandomSequences::loseAPluginFile(const QString &simulator)
{
    const QStringList files = m_books->pluginFilesOf(simulator);
    const QString &path = files.at(dice(files.size()));
    m_steps.append(QLatin1String("lose ") + path);
    QFile::remove(m_computer->absolute(path));
    m_books->lose(path);
}

void TestRandomSequences::putBesideAPluginFile(const QString &simulator, const char *name)
{
    const QStringList files = m_books->pluginFilesOf(simulator);
    const QString &path = files.at(dice(files.size()));
    write(path.left(path.lastIndexOf(u'/') + 1) + QLatin1String(name), name);
}

void TestRandomSequences::addSomebodysEntry(const QString &simulator)
{
    const QString file = m_books->configurationOf(simulator);
    if (file.isEmpty() || !m_books->has(file))
        return;
    QByteArray text = m_books->content(file);
    text.insert(text.indexOf("</SimBase.Document>"),
                "    <Launch.Addon>\r\n        <Name>Another</Name>\r\n    </Launch.Addon>\r\n");
    write(file, text);
}

void TestRandomSequences::loseTheConfiguration(const QString &simulator)
{
    const QString file = m_books->configurationOf(simulator);
    m_steps.append(QLatin1String("lose ") + file);
    if (!file.isEmpty())
        QFile::remove(m_computer->absolute(file));
    m_books->lose(file);
}

void TestRandomSequences::damageTheRecord()
{
    write(m_computer->data(QStringLiteral("Quillmont/Orbwell/.mapping")), "[{\"name\": ");
}

void TestRandomSequences::write(const QString &path, const QByteArray &content)
{
    m_steps.append(QLatin1String("write ") + path);
    m_computer->write(path, content);
    m_books->change(path, content);
}

void TestRandomSequences::answer(const QString &title, const QString &text)
{
    const SeenWindow box = m_program->box();
    QCOMPARE(box.title, title);
    QCOMPARE(box.text, text);
    m_program->press(QStringLiteral("OK"));
    m_program->window();
}

void TestRandomSequences::check()
{
    QCOMPARE(difference(m_computer->disk(), m_books->disk()), QString());
    checkBackups();
}

// The first one always exists, of the others only one per second.
void TestRandomSequences::checkBackups()
{
    const auto &sets = m_books->backups();
    for (auto it = sets.cbegin(); it != sets.cend(); ++it) {
        const QFileInfo pattern(m_computer->absolute(it.key()));
        int next = 0;
        for (const QString &name : pattern.dir().entryList({pattern.fileName()}, QDir::Files)) {
            next = it.value().indexOf(readFile(pattern.dir().filePath(name)), next) + 1;
            QVERIFY2(next > 0, qPrintable(name));
        }
    }
}

void TestRandomSequences::checkRows()
{
    for (const SeenRow &row : m_program->rows()) {
        const bool installed = m_books->isInstalled(row.name);
        QCOMPARE(row.icon, QLatin1String(installed ? "check-green" : "check-grey"));
        QCOMPARE(row.action.text,
                 QLatin1String(installed ? "Uninstall Orbwell" : "Install Orbwell"));
    }
}

// Only if all sequences were run.
void TestRandomSequences::cleanupTestCase()
{
    QVERIFY(m_sequences < 32 || m_plans >= 200);
}

QTEST_GUILESS_MAIN(TestRandomSequences)
#include "tst_RandomSequences.moc"
