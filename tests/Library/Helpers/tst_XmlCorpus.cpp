#include "tests/Library/Helpers/Corpus.h"
#include "tests/Library/Helpers/RoundTrip.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QFileInfo>
#include <QtTest>

using Tests::Corpus;
using Tests::RoundTrip;

/// Adds an entry to many files like those of real simulators, and removes it again.
class TestXmlCorpus : public QObject
{
    Q_OBJECT

private slots:
    void survivesInTheRepositorysSamples_data();
    void survivesInTheRepositorysSamples();
    void survivesInOtherSamples_data();
    void survivesInOtherSamples();

private:
    void check();

    Tests::Sandbox m_sandbox;
};

void TestXmlCorpus::survivesInTheRepositorysSamples_data()
{
    Corpus::addRows(Corpus::own());
}

void TestXmlCorpus::survivesInTheRepositorysSamples()
{
    check();
}

void TestXmlCorpus::survivesInOtherSamples_data()
{
    if (!QFileInfo::exists(Corpus::foreign()))
        QSKIP("no folder of files; ORBWELL_XML_CORPUS may name one");
    Corpus::addRows(Corpus::foreign());
}

void TestXmlCorpus::survivesInOtherSamples()
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
