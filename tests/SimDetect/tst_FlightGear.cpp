#include "tests/SimDetect/Cases.h"

#include <QTest>

using namespace Tests;

/// How FlightGear's data folder is found.
class TestFlightGear : public QObject
{
    Q_OBJECT

private slots:
    void findsItsData_data();

    void findsItsData() { checkCase(); }

    void readsItsLaunchersSettings_data();

    void readsItsLaunchersSettings() { checkCase(); }

    void findsTheLaunchersDownloads_data();

    void findsTheLaunchersDownloads() { checkCase(); }

    void ignoresFoldersWithoutData_data();

    void ignoresFoldersWithoutData() { checkCase(); }
};

namespace {

// Data folders, separated by spaces.
QByteArray data(const QByteArray &folders)
{
    QByteArray tree;
    for (const QByteArray &folder : folders.split(' '))
        tree += "file " + folder + "/version = 2020.3.19\nfile " + folder + "/defaults.xml =\n";
    return tree;
}

QByteArray launcher(const QByteArray &content)
{
    return "file $H/.fgfs/FlightGear/FlightGear.ini = " + content + '\n';
}

} // namespace

void TestFlightGear::findsItsData_data()
{
    caseColumns();
    addCase("the folder in FG_ROOT",
            OnBoth,
            R"(file $R/data/version = 2020.3.19\n
               file $R/data/defaults.xml =
               variable FG_ROOT = $R/data/
               file $R/usr/share/games/flightgear/version = 2020.3.16
               file $R/usr/share/games/flightgear/defaults.xml =)",
            "FGFS: $R/data");
    addCase("by the file that older versions have",
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
    addCase("a packaged version before a downloaded one",
            OnLinux,
            R"(file $R/usr/share/flightgear/version = 2020.3.16
               file $R/usr/share/flightgear/defaults.xml =
               file $H/.fgfs/fgdata_2024_1/version = 2024.1.1
               file $H/.fgfs/fgdata_2024_1/defaults.xml =)",
            "FGFS: $R/usr/share/flightgear");
    addCase("packaged versions in order",
            OnLinux,
            data("$R/usr/share/games/FlightGear $R/usr/local/share/flightgear "
                 "$R/usr/share/flightgear/data $R/usr/share/flightgear"),
            "FGFS: $R/usr/share/flightgear");
}

void TestFlightGear::readsItsLaunchersSettings_data()
{
    caseColumns();
    const QByteArray chosen = "[General]\\nfg-root-2024-1=$R/chosen\\n";
    const QByteArray packaged = "$R/usr/share/flightgear";
    addCase("before a packaged version",
            OnLinux,
            data("$R/chosen " + packaged) + launcher(chosen),
            "FGFS: $R/chosen");
    addCase("after FG_ROOT",
            OnLinux,
            data("$R/chosen $R/data") + launcher(chosen) + "variable FG_ROOT = $R/data",
            "FGFS: $R/data");
    addCase("in its folder on macOS",
            OnMacOS,
            data("$R/chosen")
                + "file $H/Library/Application Support/FlightGear/FlightGear/FlightGear.ini = "
                + chosen,
            "FGFS: $R/chosen");
    addCase("the folder in FG_HOME",
            OnBoth,
            data("$R/chosen $R/other") + launcher("[General]\\nfg-root-2024-1=$R/other")
                + "variable FG_HOME = $R/fg/\nfile $R/fg/FlightGear/FlightGear.ini = " + chosen,
            "FGFS: $R/chosen");
    for (const char *home : {"", "fg"}) {
        addCase("FG_HOME is \"" + QByteArray(home) + '"',
                OnLinux,
                data("$R/chosen") + launcher(chosen) + "variable FG_HOME = " + home,
                "FGFS: $R/chosen");
    }
    addCase(
        "the highest version of all files",
        OnLinux,
        data("$R/a $R/b $R/c")
            + launcher(R"([General]\nfg-root-2020-3-19=$R/a\nfg-root-2020-3-9=$R/b)")
            + R"(file $H/.fgfs/FlightGear/FlightGear-2024.ini = [General]\nfg-root-2020-3-20=$R/c)",
        "FGFS: $R/c");
    addCase("the highest version is deleted, another is not data",
            OnLinux,
            data("$R/a")
                + launcher(
                    R"([General]\nfg-root-2020-3=$R/a\nfg-root-2024-1=$R/gone\nfg-root-2022-1=$R)"),
            "FGFS: $R/a",
            "FGFS not taken: $R/gone: no such folder\n"
            "FGFS not taken: $R: no file \"version\" that begins with a version number");
    const auto passedOver =
        [packaged](const char *name, const QByteArray &tree, const QByteArray &log) {
            addCase(name, OnLinux, data("$R/chosen " + packaged) + tree, "FGFS: " + packaged, log);
        };
    passedOver("the user wants to be asked", launcher("[General]\\nfg-root-2024-1=!ask"), "");
    passedOver("nothing is chosen", launcher("[General]\\nfg-root-2024-1=\\nfg-root-2020-3"), "");
    passedOver(
        "other sections",
        launcher(
            R"(fg-root-1=$R/chosen\n[Other]\nfg-root-2=$R/chosen\n[%General]\nfg-root-3=$R/chosen)"),
        "");
    passedOver(
        "other keys",
        launcher(R"([General]\nroot=$R/chosen\nold-fg-root-1=$R/chosen\n;fg-root-2=$R/chosen)"),
        "");
    passedOver("other files",
               R"(file $H/.fgfs/FlightGear/Other.ini = [General]\nfg-root-1=$R/chosen
                  file $H/.fgfs/FlightGear/FlightGear.ini.bak = [General]\nfg-root-1=$R/chosen)",
               "");
    passedOver("an object instead of a folder",
               launcher(R"([General]\nfg-root-1=@Variant(\\0\\0\\0\\t\\x7f))"),
               "FGFS not taken: @Variant(000t?): not an absolute path");
    passedOver("a pipe",
               "fifo $H/.fgfs/FlightGear/FlightGear.ini",
               "FGFS not taken: $H/.fgfs/FlightGear/FlightGear.ini: not a regular file");
    addCase("the other file is a folder",
            OnLinux,
            data("$R/chosen") + launcher(chosen) + "dir $H/.fgfs/FlightGear/FlightGear-2020.ini",
            "FGFS: $R/chosen",
            "FGFS not taken: $H/.fgfs/FlightGear/FlightGear-2020.ini: not a regular file");
    for (const int others : {255, 256}) {
        addCase("after " + QByteArray::number(others) + " deleted ones",
                OnLinux,
                data("$R/chosen")
                    + launcher("[General]\\n" + QByteArray("fg-root-2=$R/gone\\n").repeated(others)
                               + "fg-root-1=$R/chosen"),
                others < 256 ? "FGFS: $R/chosen" : "",
                "FGFS not taken: $R/gone: no such folder");
    }
    addCase("a higher version after 256 deleted ones",
            OnLinux,
            data("$R/chosen")
                + launcher("[General]\\n" + QByteArray("fg-root-1=$R/gone\\n").repeated(256)
                           + "fg-root-2=$R/chosen"),
            "FGFS: $R/chosen");
    const QByteArray head = "[General]\\n";
    for (const int size : {1024 * 1024, 1024 * 1024 + 1}) {
        addCase("beside a file of " + QByteArray::number(size) + " bytes",
                OnLinux,
                data("$R/chosen") + launcher(chosen)
                    + "file $H/.fgfs/FlightGear/FlightGear-2020.ini = " + head
                    + QByteArray(size - head.size() + 1, 'x'),
                "FGFS: $R/chosen",
                size > 1024 * 1024
                    ? "FGFS not taken: $H/.fgfs/FlightGear/FlightGear-2020.ini: too large"
                    : "");
    }
    const auto written = [](const char *name, const char *line, const char *folder) {
        addCase(name,
                OnLinux,
                "file " + QByteArray(folder) + "/version = 2020.3\nfile " + folder
                    + "/defaults.xml =\n" + launcher("[General]\\n" + QByteArray(line)),
                "FGFS: " + QByteArray(folder));
    };
    written("quotes", R"(fg-root-2024-1="$R/a, b; c=d")", "$R/a, b; c=d");
    written("escapes",
            R"(fg-root-2024-1=$R/Flugger\\xe4t \\x98db\\xd83d\\xdeec)",
            "$R/Fluggerät 飛🛬");
    written("a long escape", R"(fg-root-2024-1=$R/Flugger\\x000e4t)", "$R/Fluggerät");
    written("a backslash and a quote", R"(fg-root-2024-1="$R/a\\\\b\\"c")", "$R/a\\b\"c");
    written("UTF-8", "fg-root-2024-1=$R/Fluggerät", "$R/Fluggerät");
    written("Latin-1", R"(fg-root-2024-1=$R/Flugger\xE4t)", "$R/Fluggerät");
    written("spaces and other line ends", R"(\r\n fg-root-2024-1 = $R/a b \r\n)", "$R/a b");
    addCase("a byte-order mark, and the section in other letter case",
            OnLinux,
            data("$R/chosen") + launcher(R"(\xEF\xBB\xBF[general]\nfg-root-2024-1=$R/chosen/)"),
            "FGFS: $R/chosen");
}

void TestFlightGear::findsTheLaunchersDownloads_data()
{
    caseColumns();
    const QByteArray there = launcher("[General]\\ndownload-dir=$R/downloads\\n");
    addCase("the highest version of both folders",
            OnLinux,
            there
                + data("$H/.fgfs/fgdata_2020_3 $R/downloads/fgdata_2024_1 $H/.fgfs/fgdata_2022_1"),
            "FGFS: $R/downloads/fgdata_2024_1");
    addCase("the highest version is at home",
            OnLinux,
            there + data("$H/.fgfs/fgdata_2024_1 $R/downloads/fgdata_2020_3"),
            "FGFS: $H/.fgfs/fgdata_2024_1");
    addCase("the same version in both folders",
            OnLinux,
            there + data("$H/.fgfs/fgdata_2024_1 $R/downloads/fgdata_2024_1"),
            "FGFS: $H/.fgfs/fgdata_2024_1");
    addCase(
        "a folder with another name", OnLinux, there + data("$R/downloads/old_fgdata_2024_1"), "");
    addCase("after a packaged version",
            OnLinux,
            there + data("$R/downloads/fgdata_2024_1 $R/usr/share/flightgear"),
            "FGFS: $R/usr/share/flightgear");
    addCase("after the same folder many times",
            OnLinux,
            launcher("[General]\\n" + QByteArray("download-dir=$R/gone\\n").repeated(256)
                     + "download-dir=$R/downloads")
                + data("$R/downloads/fgdata_2024_1"),
            "FGFS: $R/downloads/fgdata_2024_1");
    addCase("the folder in FG_HOME",
            OnBoth,
            data("$R/fg/fgdata_2020_3 $H/.fgfs/fgdata_2024_1") + "variable FG_HOME = $R/fg",
            "FGFS: $R/fg/fgdata_2020_3");
    addCase("in the folder that the launcher uses on either system",
            OnBoth,
            "variable FG_HOME = $R/fg\nfile $R/fg/FlightGear/FlightGear.ini = "
            "[General]\\ndownload-dir=$R/downloads\n"
                + data("$R/downloads/fgdata_2024_1"),
            "FGFS: $R/downloads/fgdata_2024_1");
    addCase(
        "an unfinished download, and an invalid folder",
        OnLinux,
        launcher(
            R"([General]\ndownload-dir=downloads\ndownload-dir=$R/gone\ndownload-dir=$R/downloads)")
            + data("$R/downloads/_download_data_2024_1 $R/downloads/fgdata_2020_3"),
        "FGFS: $R/downloads/fgdata_2020_3");
}

void TestFlightGear::ignoresFoldersWithoutData_data()
{
    caseColumns();
    addCase("FG_ROOT is deleted, and a download is incomplete",
            OnLinux,
            R"(variable FG_ROOT = $R/gone
               file $R/usr/share/games/flightgear/version = 2020.3.16
               file $R/usr/share/games/flightgear/defaults.xml =
               file $H/.fgfs/fgdata_2024_1/version = 2024.1.1)",
            "FGFS: $R/usr/share/games/flightgear",
            "FGFS not taken: $R/gone: no such folder");
    addCase("the highest download is incomplete",
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
    addCase("a folder with only the data inside",
            OnLinux,
            R"(file $R/usr/share/games/flightgear/data/version = 2020.3.16
               file $R/usr/share/games/flightgear/data/defaults.xml =)",
            "FGFS: $R/usr/share/games/flightgear/data",
            "FGFS not taken: $R/usr/share/games/flightgear: no file \"version\" that begins with a "
            "version number");
    for (const char *version : {"", "v2020.3", "2020", "\\x202020.3", ".3", "\\xFF"}) {
        const QByteArray name = QByteArray("a version file that says \"") + version + '"';
        addCase(name,
                OnBoth,
                QByteArray("file $R/data/version = ") + version
                    + "\nfile $R/data/defaults.xml =\nvariable FG_ROOT = $R/data",
                "",
                "FGFS not taken: $R/data: no file \"version\" that begins with a version number");
    }
    addCase("typical names that are not files",
            OnBoth,
            R"(fifo $R/a/version
               file $R/a/defaults.xml =
               variable FG_ROOT = $R/a)",
            "",
            "FGFS not taken: $R/a: no file \"version\" that begins with a version number");
    addCase("a folder in place of defaults.xml",
            OnBoth,
            R"(file $R/a/version = 2020.3
               dir $R/a/defaults.xml
               variable FG_ROOT = $R/a)",
            "",
            "FGFS not taken: $R/a: no defaults.xml or preferences.xml");
}

QTEST_GUILESS_MAIN(TestFlightGear)
#include "tst_FlightGear.moc"
