#include "Widgets/AddonListItem.h"

#include <QFile>
#include <QImage>
#include <QTest>

namespace {

// Whether green predominates among the visible pixels, rather than no colour.
bool isGreen(const QImage &image)
{
    qint64 green = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            green += qint64(colour.alpha()) * (2 * colour.green() - colour.red() - colour.blue());
        }
    }
    return green > qint64(image.width()) * image.height() * 255;
}

bool showsSomething(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() == 255)
                return true;
        }
    }
    return false;
}

} // namespace

class TestStateIcons : public QObject
{
    Q_OBJECT

private slots:
    void areRegisteredAtStartUp();
    void areLargeEnoughForEveryScreen_data();
    void areLargeEnoughForEveryScreen();
    void differFromEachOther();
    void canBeUnregisteredAndRegisteredAgain();
};

void TestStateIcons::areRegisteredAtStartUp()
{
    // The icons are registered because the row is linked in.
    QVERIFY(Quillmont::Utility::Widgets::AddonListItem::staticMetaObject.className());
    QVERIFY(QFile::exists(QStringLiteral(":/assets/Quillmont Orbwell/icon-check-green-44.png")));
}

void TestStateIcons::areLargeEnoughForEveryScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("green");
    QTest::newRow("installed") << QStringLiteral("icon-check-green-44") << true;
    QTest::newRow("not installed") << QStringLiteral("icon-check-grey-44") << false;
    QTest::newRow("no folder") << QStringLiteral("icon-minus-grey-44") << false;
}

void TestStateIcons::areLargeEnoughForEveryScreen()
{
    QFETCH(QString, name);
    const QString base = QLatin1String(":/assets/Quillmont Orbwell/") + name;
    const QImage normal(base + QLatin1String(".png"), "PNG");
    const QImage doubled(base + QLatin1String("@2x.png"), "PNG");
    QCOMPARE(normal.size(), QSize(44, 44));
    QCOMPARE(doubled.size(), QSize(88, 88));
    for (const QImage &image : {normal, doubled}) {
        QVERIFY(image.hasAlphaChannel());
        QVERIFY(showsSomething(image));
        QTEST(isGreen(image), "green");
    }
}

void TestStateIcons::differFromEachOther()
{
    const QImage check(QStringLiteral(":/assets/Quillmont Orbwell/icon-check-grey-44.png"));
    const QImage minus(QStringLiteral(":/assets/Quillmont Orbwell/icon-minus-grey-44.png"));
    QVERIFY(check != minus);
}

void TestStateIcons::canBeUnregisteredAndRegisteredAgain()
{
    const QString icon = QStringLiteral(":/assets/Quillmont Orbwell/icon-minus-grey-44.png");
    Q_CLEANUP_RESOURCE(quillmontorbwellsetup);
    QVERIFY(!QFile::exists(icon));
    Q_INIT_RESOURCE(quillmontorbwellsetup);
    QVERIFY(QFile::exists(icon));
}

QTEST_MAIN(TestStateIcons)
#include "tst_StateIcons.moc"
