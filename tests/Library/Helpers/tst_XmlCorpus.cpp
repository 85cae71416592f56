#include "tests/Library/Helpers/Corpus.h"
#include "tests/Library/Helpers/RoundTrip.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QFileInfo>
#include <QtTest>

using Tests::Corpus;
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
    void check();

    Tests::Sandbox m_sandbox;
};

void TestXmlCorpus::ownFiles_data()
{
    Corpus::addRows(Corpus::own());
}

void TestXmlCorpus::ownFiles()
{
    check();
}

void TestXmlCorpus::foreignFiles_data()
{
    if (!QFileInfo::exists(Corpus::foreign()))
        QSKIP("no folder of files; ORBWELL_XML_CORPUS may name one");
    Corpus::addRows(Corpus::foreign());
}

void TestXmlCorpus::foreignFiles()
{
    check();
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
