#include "tests/Library/Helpers/RoundTrip.h"
#include "tests/Library/Helpers/XmlGenerator.h"
#include "tests/Library/Helpers/XmlPromises.h"
#include "tests/support/Files.h"
#include "tests/support/Sandbox.h"

#include <QDirIterator>
#include <QtTest>

using Tests::XmlGenerator;
using Tests::XmlPromises;

/// Checks the promises with very many documents, well formed and broken.
class TestXmlProperties : public QObject
{
    Q_OBJECT

private slots:
    void restoreWellFormedDocumentsExactly();
    void keepOrRestoreBrokenDocumentsExactly();
    void treatFilesLikeBytes();

private:
    Tests::Sandbox m_sandbox;
};

namespace {

constexpr quint32 seed = 20240131;

QVector<QByteArray> corpus()
{
    QVector<QByteArray> files;
    QStringList paths;
    QDirIterator it(QStringLiteral(ORBWELL_SOURCE "/tests/Library/corpus"),
                    {QStringLiteral("*.xml")},
                    QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        paths.append(it.next());
    // Folders are listed in any order, but the documents must be the same in every run.
    paths.sort();
    for (const QString &path : paths)
        files.append(Tests::readFile(path));
    return files;
}

} // namespace

void TestXmlProperties::restoreWellFormedDocumentsExactly()
{
    XmlGenerator generator(seed);
    for (int i = 0; i < 8000; ++i) {
        const QByteArray bytes = generator.document();
        bool isAccepted = false;
        const QString broken = XmlPromises::broken(bytes, &isAccepted);
        QVERIFY2(broken.isEmpty(), (broken.toUtf8() + '\n' + bytes).constData());
        QVERIFY2(isAccepted, bytes.constData());
    }
}

void TestXmlProperties::keepOrRestoreBrokenDocumentsExactly()
{
    const QVector<QByteArray> files = corpus();
    XmlGenerator generator(seed);
    int accepted = 0;
    for (int i = 0; i < 20000; ++i) {
        const bool isFromCorpus = i % 2 == 0;
        const QByteArray whole
            = isFromCorpus ? files.at(i / 2 % files.size()) : generator.document();
        const QByteArray bytes = generator.broken(whole);
        bool isAccepted = false;
        const QString broken = XmlPromises::broken(bytes, &isAccepted);
        QVERIFY2(broken.isEmpty(), (broken.toUtf8() + '\n' + bytes).constData());
        accepted += isAccepted ? 1 : 0;
    }
    qInfo("%d of 20000 broken documents are documents still", accepted);
    QVERIFY(accepted > 2000 && accepted < 18000);
}

void TestXmlProperties::treatFilesLikeBytes()
{
    XmlGenerator generator(seed);
    Tests::RoundTrip roundTrip(m_sandbox.path(QStringLiteral("exe.xml")));
    for (int i = 0; i < 100; ++i) {
        const QByteArray bytes = generator.document();
        QCOMPARE(roundTrip.broken(bytes), QString());
        QVERIFY2(roundTrip.wasAccepted(), bytes.constData());
        QCOMPARE(roundTrip.broken(generator.broken(bytes)), QString());
    }
}

QTEST_APPLESS_MAIN(TestXmlProperties)
#include "tst_XmlProperties.moc"
