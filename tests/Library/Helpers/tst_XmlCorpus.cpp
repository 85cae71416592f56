#include "tests/Library/Helpers/RoundTrip.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QDirIterator>
#include <QtTest>

using Tests::RoundTrip;

/// Adds an entry to many files of the kind that simulators have, and takes it out again.
class TestXmlCorpus : public QObject
{
    Q_OBJECT

private slots:
    void ownFiles_data();
    void ownFiles();
    void foreignFiles_data();
    void foreignFiles();

private:
    static void addFiles(const QString &folder);
    void check();

    Tests::Sandbox m_sandbox;
};

namespace {

/// What a folder's index expects of its files: the first column names a file, the last one says
/// "accept", "refuse", or something else where either will do.
QMap<QString, QString> expectations(const QString &folder)
{
    QMap<QString, QString> result;
    QFile index(folder + QStringLiteral("/INDEX.tsv"));
    if (!index.open(QIODevice::ReadOnly))
        return result;
    const QStringList lines = QString::fromUtf8(index.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        result.insert(line.section(u'\t', 0, 0), line.section(u'\t', -1).trimmed());
    return result;
}

QString foreignFolder()
{
    const QString beside = QStringLiteral(SOURCE_FOLDER "/../shared/xml-corpus");
    return qEnvironmentVariable("ORBWELL_XML_CORPUS", beside);
}

} // namespace

void TestXmlCorpus::ownFiles_data()
{
    addFiles(QStringLiteral(SOURCE_FOLDER "/tests/Library/corpus"));
}

void TestXmlCorpus::ownFiles()
{
    check();
}

void TestXmlCorpus::foreignFiles_data()
{
    if (!QFileInfo::exists(foreignFolder()))
        QSKIP("no folder of files; ORBWELL_XML_CORPUS may name one");
    addFiles(foreignFolder());
}

void TestXmlCorpus::foreignFiles()
{
    check();
}

void TestXmlCorpus::addFiles(const QString &folder)
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    const QMap<QString, QString> expected = expectations(folder);
    QDirIterator it(folder, {QStringLiteral("*.xml")}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString name = QDir(folder).relativeFilePath(path);
        QTest::newRow(qPrintable(name)) << path << expected.value(name);
    }
}

void TestXmlCorpus::check()
{
    QFETCH(const QString, path);
    QFETCH(const QString, expected);

    RoundTrip roundTrip(m_sandbox.path(QStringLiteral("exe.xml")));
    QCOMPARE(roundTrip.broken(Tests::readFile(path)), QString());
    if (expected == QLatin1String("accept"))
        QVERIFY(roundTrip.wasAccepted());
    else if (expected == QLatin1String("refuse"))
        QVERIFY(!roundTrip.wasAccepted());
}

QTEST_APPLESS_MAIN(TestXmlCorpus)
#include "tst_XmlCorpus.moc"
