#include <QFile>
#include <QTest>

// Uses nothing of the program, but is linked to it.
class TestArtwork : public QObject
{
    Q_OBJECT

private slots:

    void isInEveryProgramThatIsLinkedToTheLibrary_data()
    {
        QTest::addColumn<QString>("icon");
        for (const char *icon : {"icon-check-green-44", "icon-check-grey-44", "icon-minus-grey-44"})
            for (const char *detail : {"", "@2x"})
                QTest::addRow("%s%s", icon, detail)
                    << QStringLiteral(":/assets/Quillmont Orbwell/%1%2.png")
                           .arg(QLatin1String(icon), QLatin1String(detail));
    }

    void isInEveryProgramThatIsLinkedToTheLibrary()
    {
        QFETCH(const QString, icon);
        QVERIFY(QFile::exists(icon));
    }
};

QTEST_APPLESS_MAIN(TestArtwork)
#include "tst_Artwork.moc"
