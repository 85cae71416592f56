#include "tests/SimDetect/Cases.h"

#include <QTest>

using namespace Tests;

/// FlightGear's data folder, wherever it comes from.
class TestFlightGear : public QObject
{
    Q_OBJECT

private slots:
    void findsItsData_data();

    void findsItsData() { checkCase(); }

    void passesOverWhatIsNoData_data();

    void passesOverWhatIsNoData() { checkCase(); }
};

void TestFlightGear::findsItsData_data()
{
    caseColumns();
    addCase("where FG_ROOT says",
            OnBoth,
            R"(file $R/data/version = 2020.3.19\n
               file $R/data/defaults.xml =
               variable FG_ROOT = $R/data/
               file $R/usr/share/games/flightgear/version = 2020.3.16
               file $R/usr/share/games/flightgear/defaults.xml =)",
            "FGFS: $R/data");
    addCase("by the file that older ones have",
            OnBoth,
            R"(file $R/data/version = 3.4.0
               file $R/data/preferences.xml =
               variable FG_ROOT = $R/data)",
            "FGFS: $R/data");
    for (const char *place : {"/usr/share/games/flightgear",
                              "/usr/share/games/flightgear/data",
                              "/usr/share/flightgear",
                              "/usr/share/flightgear/data",
                              "/usr/local/share/flightgear",
                              "/usr/local/share/flightgear/data",
                              "/usr/share/games/FlightGear",
                              "/usr/share/games/FlightGear/data"}) {
        const QByteArray folder = QByteArray("$R") + place;
        addCase(place,
                OnLinux,
                "file " + folder + "/version = 2020.3.16\nfile " + folder + "/defaults.xml =",
                "FGFS: " + folder,
                "*");
    }
    addCase("in the application of macOS",
            OnMacOS,
            R"(file $R/Applications/FlightGear.app/Contents/Resources/data/version = 2020.3.16
               file $R/Applications/FlightGear.app/Contents/Resources/data/defaults.xml =
               file $H/Applications/FlightGear.app/Contents/Resources/data/version = 2024.1.1
               file $H/Applications/FlightGear.app/Contents/Resources/data/defaults.xml =)",
            "FGFS: $R/Applications/FlightGear.app/Contents/Resources/data");
    addCase("in the user's own application of macOS",
            OnMacOS,
            R"(file $H/Applications/FlightGear.app/Contents/Resources/data/version = 2024.1.1
               file $H/Applications/FlightGear.app/Contents/Resources/data/defaults.xml =
               file $H/Library/Application Support/FlightGear/fgdata_2024_1/version = 2024.1.1
               file $H/Library/Application Support/FlightGear/fgdata_2024_1/defaults.xml =)",
            "FGFS: $H/Applications/FlightGear.app/Contents/Resources/data");
    addCase("the highest downloaded version",
            OnLinux,
            R"(file $H/.fgfs/fgdata_2020.4/version = 2020.4.0
               file $H/.fgfs/fgdata_2020.4/defaults.xml =
               file $H/.fgfs/fgdata_2020_10/version = 2020.10.1
               file $H/.fgfs/fgdata_2020_10/defaults.xml =
               file $H/.fgfs/fgdata_2020.9/version = 2020.9.1
               file $H/.fgfs/fgdata_2020.9/defaults.xml =)",
            "FGFS: $H/.fgfs/fgdata_2020_10");
    addCase("the highest downloaded version on macOS",
            OnMacOS,
            R"(file $H/Library/Application Support/FlightGear/fgdata_2020_3/version = 2020.3.19
               file $H/Library/Application Support/FlightGear/fgdata_2020_3/defaults.xml =
               file $H/Library/Application Support/FlightGear/fgdata_2024_1/version = 2024.1.1
               file $H/Library/Application Support/FlightGear/fgdata_2024_1/defaults.xml =)",
            "FGFS: $H/Library/Application Support/FlightGear/fgdata_2024_1");
    addCase("a packaged one before a downloaded one",
            OnLinux,
            R"(file $R/usr/share/flightgear/version = 2020.3.16
               file $R/usr/share/flightgear/defaults.xml =
               file $H/.fgfs/fgdata_2024_1/version = 2024.1.1
               file $H/.fgfs/fgdata_2024_1/defaults.xml =)",
            "FGFS: $R/usr/share/flightgear");
}

void TestFlightGear::passesOverWhatIsNoData_data()
{
    caseColumns();
    addCase("FG_ROOT is gone, and a download is not whole",
            OnLinux,
            R"(variable FG_ROOT = $R/gone
               file $R/usr/share/games/flightgear/version = 2020.3.16
               file $R/usr/share/games/flightgear/defaults.xml =
               file $H/.fgfs/fgdata_2024_1/version = 2024.1.1)",
            "FGFS: $R/usr/share/games/flightgear",
            "FGFS not taken: $R/gone: no such folder");
    addCase("the highest download is not whole",
            OnLinux,
            R"(file $H/.fgfs/fgdata_2020_3/version = 2020.3.19
               file $H/.fgfs/fgdata_2020_3/defaults.xml =
               file $H/.fgfs/fgdata_2024_1/version = 2024.1.1
               file $H/.fgfs/fgdata_2024_2 = an archive
               dir $H/.fgfs/Export)",
            "FGFS: $H/.fgfs/fgdata_2020_3",
            "FGFS not taken: $H/.fgfs/fgdata_2024_1: no defaults.xml or preferences.xml");
    addCase("FG_ROOT is relative",
            OnBoth,
            "variable FG_ROOT = data",
            "",
            "FGFS not taken: data: not an absolute path");
    addCase("FG_ROOT is empty", OnBoth, "variable FG_ROOT =", "");
    addCase(
        "a folder with only the data inside",
        OnLinux,
        R"(file $R/usr/share/games/flightgear/data/version = 2020.3.16
               file $R/usr/share/games/flightgear/data/defaults.xml =)",
        "FGFS: $R/usr/share/games/flightgear/data",
        "FGFS not taken: $R/usr/share/games/flightgear: no file \"version\" that begins with one");
    for (const char *version : {"", "v2020.3", "2020", "\\x202020.3", ".3", "\\xFF"}) {
        const QByteArray name = QByteArray("a version file that says \"") + version + '"';
        addCase(name,
                OnBoth,
                QByteArray("file $R/data/version = ") + version
                    + "\nfile $R/data/defaults.xml =\nvariable FG_ROOT = $R/data",
                "",
                "FGFS not taken: $R/data: no file \"version\" that begins with one");
    }
    addCase("marks that are no files",
            OnBoth,
            R"(fifo $R/a/version
               file $R/a/defaults.xml =
               variable FG_ROOT = $R/a)",
            "",
            "FGFS not taken: $R/a: no file \"version\" that begins with one");
    addCase("a folder for defaults.xml",
            OnBoth,
            R"(file $R/a/version = 2020.3
               dir $R/a/defaults.xml
               variable FG_ROOT = $R/a)",
            "",
            "FGFS not taken: $R/a: no defaults.xml or preferences.xml");
}

QTEST_GUILESS_MAIN(TestFlightGear)
#include "tst_FlightGear.moc"
