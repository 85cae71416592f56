#include "tests/Catalogue/Catalogues.h"
#include "tests/ViewControllers/Workshop.h"

#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"

#include <QApplication>
#include <QJsonDocument>
#include <QTest>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <functional>

using Tests::FlightSimScan;
using Tests::FlightSimulatorMapping;
using Tests::ScanController;
using Tests::shippedCatalogue;
using Tests::Workshop;

namespace {

constexpr int scans = 1000;

/// The bytes that the process has allocated; 0 if the system does not count them.
size_t allocatedBytes()
{
#if defined(__GLIBC__) && (__GLIBC__ > 2 || __GLIBC_MINOR__ >= 33)
    return mallinfo2().uordblks;
#else
    return 0;
#endif
}

/// The bytes that each of a thousand rounds of @p work leaves allocated, on average.
double growthOf(const std::function<void()> &work)
{
    // The first rounds fill Qt's caches.
    for (int i = 0; i < 20; ++i)
        work();
    const size_t before = allocatedBytes();
    for (int i = 0; i < scans; ++i)
        work();
    return (double(allocatedBytes()) - double(before)) / scans;
}

} // namespace

/// Nothing is deleted between scans, since a row or a box may hold a mapping from an earlier one. A
/// scan adds only its entries with their mappings.
class TestRescans : public QObject
{
    Q_OBJECT

private slots:

    void initTestCase()
    {
        // The captured log would count as growth.
        m_shop.controller();
        m_handler
            = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        m_shop.writeCatalogue(shippedCatalogue());
    }

    void cleanupTestCase() { qInstallMessageHandler(m_handler); }

    void addOnlyTheNewModels()
    {
        if (allocatedBytes() == 0)
            QSKIP("nobody counts the allocated bytes here");

        const double growth = growthOf([this] { rescan(); });
        QObject owner;
        const double models = growthOf([&owner] { makeModels(&owner); });

        const QString report = QStringLiteral("a scan leaves %1 bytes, its models have %2")
                                   .arg(growth, 0, 'f', 0)
                                   .arg(models, 0, 'f', 0);
        fprintf(stderr, "%s\n", qPrintable(report));
        // The allocator's overhead for the same objects varies a little.
        QVERIFY2(growth < models * 1.15, qPrintable(report));
    }

    void keepOneRowPerEntry()
    {
        rescan();
        const int widgets = QApplication::allWidgets().size();
        rescan();
        QCOMPARE(QApplication::allWidgets().size(), widgets);
    }

private:
    void rescan()
    {
        m_shop.controller().startScan(true, false, ScanController::ModeNone);
        // The list deletes its old rows with the next deferred-delete events.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static void makeModels(QObject *owner)
    {
        const QJsonArray entries = QJsonDocument::fromJson(shippedCatalogue()).array();
        for (const auto &entry : entries)
            new FlightSimulatorMapping(new FlightSimScan(owner, entry.toObject()), QString());
    }

    Workshop m_shop;
    QtMessageHandler m_handler = nullptr;
};

QTEST_MAIN(TestRescans)
#include "tst_Rescans.moc"
