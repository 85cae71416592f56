#include "tests/Documents/Document.h"

#include <QFileInfo>
#include <QtTest>

using namespace Tests;

/// Links inside the tree have existing targets.
class TestLinks : public QObject
{
    Q_OBJECT

private slots:
    void haveExistingTargets_data();
    void haveExistingTargets();
};

void TestLinks::haveExistingTargets_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("target");
    for (const Document &document : Document::all()) {
        const QStringList targets = document.links();
        for (const QString &target : targets) {
            if (!target.contains(QLatin1String("://")))
                QTest::addRow("%s: %s", qPrintable(document.name()), qPrintable(target))
                    << document.name() << target;
        }
    }
}

void TestLinks::haveExistingTargets()
{
    QFETCH(QString, document);
    QFETCH(QString, target);
    const QString sources = QStringLiteral(ORBWELL_SOURCE "/");
    const QString file = target.section(u'#', 0, 0);
    const QString anchor = target.section(u'#', 1);
    const QString name
        = file.isEmpty() ? document : QDir::cleanPath(QFileInfo(document).path() + u'/' + file);
    QVERIFY(QFileInfo::exists(sources + name));
    if (!anchor.isEmpty())
        QVERIFY(Document(name).anchors().contains(anchor));
}

QTEST_GUILESS_MAIN(TestLinks)
#include "tst_Links.moc"
