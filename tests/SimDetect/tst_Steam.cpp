#include "tests/SimDetect/Cases.h"
#include "tests/SimDetect/DescribedComputer.h"

#include <QTest>

using namespace Quillmont::SimDetect;
using namespace Tests;

/// Steam's roots, its libraries on other drives, and its manifests.
class TestSteam : public QObject
{
    Q_OBJECT

private slots:
    void findsItsRoots_data();

    void findsItsRoots() { checkCase(); }

    void findsItsLibraries_data();

    void findsItsLibraries() { checkCase(); }

    void mapsPathsFromASandbox_data();

    void mapsPathsFromASandbox() { checkCase(); }

    void readsManifests_data();

    void readsManifests() { checkCase(); }

    void refusesFoldersOutsideTheLibrary_data();
    void refusesFoldersOutsideTheLibrary();
    void requiresTheGamesFiles_data();

    void requiresTheGamesFiles() { checkCase(); }

    void findsAeroflysUserFolder_data();

    void findsAeroflysUserFolder() { checkCase(); }

    void findsThePrefixOfAGame_data();

    void findsThePrefixOfAGame() { checkCase(); }

    void keepsALibraryInTheSandboxsOwnFolder();
};

void TestSteam::findsItsRoots_data()
{
    caseColumns();
    for (const char *place : {".local/share/Steam",
                              ".steam/steam",
                              ".steam/root",
                              ".steam/debian-installation",
                              ".var/app/com.valvesoftware.Steam/.local/share/Steam",
                              ".var/app/com.valvesoftware.Steam/data/Steam",
                              "snap/steam/common/.local/share/Steam",
                              ".snap/data/steam/common/.local/share/Steam"}) {
        const QByteArray root = QByteArray("$H/") + place;
        addCase(place,
                OnLinux,
                "game " + root + " 2014780 X-Plane 12\nxplane " + root
                    + "/steamapps/common/X-Plane 12",
                "XP12: " + root + "/steamapps/common/X-Plane 12");
    }
    addCase("the root on macOS",
            OnMacOS,
            R"(game $H/Library/Application Support/Steam 2014780 X-Plane 12
               xplane $H/Library/Application Support/Steam/steamapps/common/X-Plane 12
               game $H/.local/share/Steam 269950 X-Plane 11
               xplane $H/.local/share/Steam/steamapps/common/X-Plane 11)",
            "XP12: $H/Library/Application Support/Steam/steamapps/common/X-Plane 12");
    addCase("in the user's data folder",
            OnLinux,
            R"(variable XDG_DATA_HOME = $R/data
               game $R/data/Steam 2014780 X-Plane 12
               xplane $R/data/Steam/steamapps/common/X-Plane 12
               game $H/.local/share/Steam 2014780 X-Plane 12
               xplane $H/.local/share/Steam/steamapps/common/X-Plane 12)",
            "XP12: $R/data/Steam/steamapps/common/X-Plane 12");
    addCase("an empty or relative data folder is ignored",
            OnLinux,
            R"(variable XDG_DATA_HOME = data
               game $S 2014780 X-Plane 12
               xplane $S/steamapps/common/X-Plane 12)",
            "XP12: $S/steamapps/common/X-Plane 12");
    addCase("the native Steam before links to it and a Snap",
            OnLinux,
            R"(game $S 2014780 X-Plane 12
               xplane $S/steamapps/common/X-Plane 12
               link $H/.steam/steam -> $S
               link $H/.steam/root -> $S
               game $H/snap/steam/common/.local/share/Steam 2014780 X-Plane 12
               xplane $H/snap/steam/common/.local/share/Steam/steamapps/common/X-Plane 12)",
            "XP12: $S/steamapps/common/X-Plane 12");
    addCase("roots that are links to one count once",
            OnLinux,
            R"(game $S 2014780 X-Plane 12
               link $H/.steam/steam -> $S
               link $H/.steam/root -> $S
               libraries $S = $S, $H/.steam/steam, $S/)",
            "",
            "XP12 not taken: $S/steamapps/common/X-Plane 12: no Resources/plugins");
    addCase("a link that is the only path to it",
            OnLinux,
            R"(game $R/drive/Steam 2014780 X-Plane 12
               xplane $R/drive/Steam/steamapps/common/X-Plane 12
               link $H/.steam/root -> $R/drive/Steam)",
            "XP12: $H/.steam/root/steamapps/common/X-Plane 12");
    addCase("roots that are dangling links, loops, files and pipes",
            OnLinux,
            R"(link $H/.steam/steam -> $H/.steam/root
               link $H/.steam/root -> $H/.steam/steam
               link $H/.steam/debian-installation -> $R/gone
               file $H/.local/share/Steam =
               fifo $H/snap/steam/common/.local/share/Steam
               game $H/.snap/data/steam/common/.local/share/Steam 2014780 X-Plane 12
               xplane $H/.snap/data/steam/common/.local/share/Steam/steamapps/common/X-Plane 12)",
            "XP12: $H/.snap/data/steam/common/.local/share/Steam/steamapps/common/X-Plane 12");
}

void TestSteam::findsItsLibraries_data()
{
    caseColumns();
    const QByteArray game = "game $R/drive 2014780 X-Plane 12\n"
                            "xplane $R/drive/steamapps/common/X-Plane 12\n";
    const QByteArray found = "XP12: $R/drive/steamapps/common/X-Plane 12";
    const auto list = [game, found](const char *name, const QByteArray &content) {
        addCase(name, OnBoth, game + "file $S/config/libraryfolders.vdf = " + content, found);
    };
    list("the new form", R"("libraryfolders" { "0" { "path" "$S" } "1" { "path" "$R/drive" } })");
    list("the old form", R"("LibraryFolders" { "TimeNextStatsReport" "1" "1" "$R/drive" })");
    list("both forms in one", R"(libraryfolders { 1 "$R/gone" 2 { path "$R/drive" } })");
    list("letter case of keys", R"("LIBRARYFOLDERS" { "1" { "PATH" "$R/drive" } })");
    list("letter case of the path", R"("libraryfolders" { "1" { "path" "$R/Drive" } })");
    list("a trailing slash", R"("libraryfolders" { "1" { "path" "$R/drive/" } })");
    list("an include before it", R"(#base "other.vdf" "libraryfolders" { "1" "$R/drive" })");
    list("a condition", R"("libraryfolders" { "1" "$R/drive" [$X] "2" "$R/gone" })");
    list("junk after the last brace", R"("libraryfolders" { "1" "$R/drive" }\0\0}{"\xFF)");
    list("a list that names itself", R"("libraryfolders" { "1" "$S" "2" "$S/." "3" "$R/drive" })");
    list("keys of other kinds",
         R"("libraryfolders" { "a" "$R/x" "contentid" "1" "1a" "/" "" "/" "1" "$R/drive" })");
    list(
        "invalid paths",
        R"("libraryfolders" { "0" "" "1" "." "2" "drive" "3" { } "4" { "path" { } } "5" "C:\\Steam" "6" "$R/drive" })");
    addCase(
        "a library without a number",
        OnBoth,
        game
            + R"(file $S/config/libraryfolders.vdf = "libraryfolders" { "label" "$R/drive" "" "$R/drive" "1a" { "path" "$R/drive" } })",
        "");
    addCase("the other path of the list",
            OnBoth,
            game + R"(file $S/steamapps/libraryfolders.vdf = "libraryfolders" { "1" "$R/drive" })",
            found);
    addCase("both lists, which disagree",
            OnBoth,
            R"(game $R/one 2014780 X-Plane 12
               xplane $R/one/steamapps/common/X-Plane 12
               game $R/two 269950 X-Plane 11
               xplane $R/two/steamapps/common/X-Plane 11
               file $S/config/libraryfolders.vdf = "libraryfolders" { "1" "$R/one" }
               file $S/steamapps/libraryfolders.vdf = "libraryfolders" { "1" "$R/two" })",
            "XP11: $R/two/steamapps/common/X-Plane 11\nXP12: $R/one/steamapps/common/X-Plane 12");
    addCase("one list is truncated, the other is not",
            OnBoth,
            game + R"(file $S/config/libraryfolders.vdf = "libraryfolders" { "0" "$R/other"
               file $S/steamapps/libraryfolders.vdf = "libraryfolders" { "1" "$R/drive" })",
            found,
            "Steam's libraries not read: $S/config/libraryfolders.vdf: cut off, or not in Steam's "
            "text format");
    addCase("one list is empty",
            OnBoth,
            game + R"(file $S/config/libraryfolders.vdf =
               file $S/steamapps/libraryfolders.vdf = "libraryfolders" { "1" "$R/drive" })",
            found,
            "Steam's libraries not read: $S/config/libraryfolders.vdf: no list of libraries");
    addCase(
        "a truncated list names nothing",
        OnBoth,
        game
            + R"(file $S/config/libraryfolders.vdf = "libraryfolders" { "1" { "path" "$R/drive" })",
        "",
        "Steam's libraries not read: $S/config/libraryfolders.vdf: cut off, or not in Steam's text "
        "format");
    addCase(
        "the first of two keys counts",
        OnBoth,
        game
            + R"(file $S/config/libraryfolders.vdf = "libraryfolders" { "1" { "path" "$R/x" "path" "$R/drive" } "1" "$R/drive" } "libraryfolders" { "2" "$R/drive" })",
        "");
    for (const int others : {254, 255, 256}) {
        addCase("after " + QByteArray::number(others) + " deleted ones",
                OnBoth,
                game + "libraries $S = " + QByteArray("$R/gone, ").repeated(others) + "$R/drive",
                others < 256 ? found : "");
    }
    addCase("the list of games in it is ignored",
            OnBoth,
            R"(xplane $S/steamapps/common/X-Plane 12
               file $S/config/libraryfolders.vdf = "libraryfolders" { "0" { "path" "$S" "apps" { "2014780" "1" } } })",
            "");
    addCase("the root before what it lists, which is in the list's order",
            OnBoth,
            R"(game $S 2014780 X-Plane 12
               xplane $S/steamapps/common/X-Plane 12
               game $R/a 2014780 X-Plane 12
               xplane $R/a/steamapps/common/X-Plane 12
               game $R/a 269950 X-Plane 11
               xplane $R/a/steamapps/common/X-Plane 11
               game $R/b 269950 X-Plane 11
               xplane $R/b/steamapps/common/X-Plane 11
               libraries $S = $R/b, $R/a)",
            "XP11: $R/b/steamapps/common/X-Plane 11\nXP12: $S/steamapps/common/X-Plane 12");
    addCase("an old spelling of steamapps",
            OnBoth,
            R"(libraries $S = $R/drive
               xplane $R/drive/SteamApps/common/X-Plane 12
               file $R/drive/SteamApps/appmanifest_2014780.acf = AppState { appid 2014780 installdir "x-plane 12" })",
            "XP12: $R/drive/SteamApps/common/X-Plane 12");
}

void TestSteam::mapsPathsFromASandbox_data()
{
    caseColumns();
    const QByteArray flatpak = "$H/.var/app/com.valvesoftware.Steam/.local/share/Steam";
    addCase("its own root under the sandbox's path",
            OnLinux,
            "game " + flatpak + "/more 2014780 X-Plane 12\nxplane " + flatpak
                + "/more/steamapps/common/X-Plane 12\nlibraries " + flatpak + " = $S, $S/more",
            "XP12: " + flatpak + "/more/steamapps/common/X-Plane 12");
    addCase("a folder with only the same prefix is on another drive",
            OnLinux,
            "game $S.old 2014780 X-Plane 12\nxplane $S.old/steamapps/common/X-Plane 12\nlibraries "
                + flatpak + " = $S.old",
            "XP12: $S.old/steamapps/common/X-Plane 12");
    addCase("a native Steam's paths are not mapped",
            OnLinux,
            "game " + flatpak + "/more 2014780 X-Plane 12\nxplane " + flatpak
                + "/more/steamapps/common/X-Plane 12\nlibraries $S = $S/more",
            "");
}

void TestSteam::readsManifests_data()
{
    caseColumns();
    const auto add
        = [](const QByteArray &name, const QByteArray &content, const QByteArray &objection) {
              const QByteArray file = "$S/steamapps/appmanifest_2014780.acf";
              addCase(name,
                      OnBoth,
                      "xplane $S/steamapps/common/X-Plane 12\nfile " + file + " = " + content,
                      objection.isEmpty() ? "XP12: $S/steamapps/common/X-Plane 12" : "",
                      objection.isEmpty() ? QByteArray()
                                          : "XP12 not taken: " + file + ": " + objection);
          };
    const auto flags = [add](const QByteArray &flags, const QByteArray &objection) {
        add("StateFlags " + flags,
            R"("AppState" { "appid" "2014780" "installdir" "X-Plane 12" "StateFlags" ")" + flags
                + "\" }",
            objection);
    };
    flags("4", "");
    flags("6", "");
    flags("1030", "");
    flags("4x", "");
    flags("", "");
    flags("0x2", "");
    flags("99999999999999999999999", "");
    flags("-1", "uninstalled (StateFlags 18446744073709551615)");
    flags("18446744073709551615", "uninstalled (StateFlags 18446744073709551615)");
    flags("0", "not fully installed (StateFlags 0)");
    flags("2", "not fully installed (StateFlags 2)");
    flags("1026", "not fully installed (StateFlags 1026)");
    flags("1", "uninstalled (StateFlags 1)");
    flags("5", "uninstalled (StateFlags 5)");
    add("no StateFlags", R"("AppState" { "appid" "2014780" "installdir" "X-Plane 12" })", "");
    add("keys in mixed letter case",
        R"("APPSTATE" { "AppID" "2014780" "InstallDir" "X-Plane 12" "stateflags" "6" })",
        "");
    add("other letter case than the disk's",
        R"("AppState" { "appid" "2014780" "installdir" "x-plane 12" })",
        "");
    add("the first of two keys",
        R"("AppState" { "installdir" "X-Plane 12" "InstallDir" "other" "StateFlags" "4" "StateFlags" "1" })",
        "");
    add("keys of inner blocks do not count",
        R"("AppState" { "UserConfig" { "installdir" "other" "StateFlags" "1" } "installdir" "X-Plane 12" })",
        "");
    add("junk after the last brace", R"("AppState" { "installdir" "X-Plane 12" }\0\0"junk)", "");
    add("spaces around the app id",
        R"("AppState" { "appid" " 2014780 " "installdir" "X-Plane 12" })",
        "");
    add("another game's app id",
        R"("AppState" { "appid" "269950" "installdir" "X-Plane 12" })",
        "it is about another game");
    add("no folder", R"("AppState" { "appid" "2014780" })", "installdir is not a plain name");
    add("a block in place of a folder",
        R"("AppState" { "installdir" { "a" "b" } "installdir" "X-Plane 12" })",
        "installdir is not a plain name");
    add("another block",
        R"("Other" { "appid" "2014780" "installdir" "X-Plane 12" })",
        "no AppState in it");
    add("nothing", "", "no AppState in it");
    add("a missing last brace",
        R"("AppState" { "appid" "2014780" "installdir" "X-Plane 12")",
        "cut off, or not in Steam's text format");
    addCase("a folder in place of a manifest",
            OnBoth,
            "dir $S/steamapps/appmanifest_2014780.acf",
            "",
            "XP12 not taken: $S/steamapps/appmanifest_2014780.acf: not a regular file");
    addCase("a pipe in place of a manifest",
            OnBoth,
            "fifo $S/steamapps/appmanifest_2014780.acf",
            "",
            "XP12 not taken: $S/steamapps/appmanifest_2014780.acf: not a regular file");
    addCase(
        "a manifest whose folder is deleted",
        OnBoth,
        R"(file $S/steamapps/appmanifest_2014780.acf = "AppState" { "installdir" "X-Plane 12" })",
        "",
        "XP12 not taken: $S/steamapps/common/X-Plane 12: no such folder");
    addCase("a folder without a manifest", OnBoth, "xplane $S/steamapps/common/X-Plane 12", "");
}

void TestSteam::refusesFoldersOutsideTheLibrary_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"", ".", "..", "../X", "/", "a/b", "a\\\\b", "..\\\\..", "$R/outside", "X\\0Y"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

// There is an X-Plane at each possible target of the name, so that a mistake would show.
void TestSteam::refusesFoldersOutsideTheLibrary()
{
    QFETCH(QString, name);
    DescribedComputer computer(Environment::Linux);
    computer.make(QStringLiteral(R"(
        xplane $S/steamapps/common
        xplane $S/steamapps
        xplane $S/steamapps/X
        xplane $S/steamapps/common/a/b
        xplane $S/steamapps/common/a\b
        xplane $S/steamapps/common/X
        xplane $R/outside
        file $S/steamapps/appmanifest_2014780.acf = AppState { installdir ")")
                  + name + QStringLiteral("\" }"));
    QCOMPARE(computer.detect(), QString());
    QCOMPARE(
        computer.log(),
        {computer.expanded(QStringLiteral("XP12 not taken: $S/steamapps/appmanifest_2014780.acf: "
                                          "installdir is not a plain name"))});
}

void TestSteam::requiresTheGamesFiles_data()
{
    caseColumns();
    addCase("each simulator's own files",
            OnBoth,
            R"(game $S 314160 FSX
               file $S/steamapps/common/FSX/FSX.EXE =
               dir $S/steamapps/common/FSX/simobjects
               game $S 292180 X-Plane 10
               xplane $S/steamapps/common/X-Plane 10)",
            R"(FSXSE: $S/steamapps/common/FSX
               XP10: $S/steamapps/common/X-Plane 10)");
    addCase("half of the files",
            OnBoth,
            R"(game $S 314160 FSX
               file $S/steamapps/common/FSX/fsx.exe =)",
            "",
            "FSXSE not taken: $S/steamapps/common/FSX: no SimObjects");
    addCase("the other half of the files",
            OnBoth,
            R"(game $S 314160 FSX
               dir $S/steamapps/common/FSX/SimObjects
               dir $S/steamapps/common/FSX/fsx.exe)",
            "",
            "FSXSE not taken: $S/steamapps/common/FSX: no fsx.exe");
    addCase("an invalid folder is skipped for the next library's",
            OnBoth,
            R"(libraries $S = $R/drive
               game $S 314160 FSX
               game $R/drive 314160 FSX
               file $R/drive/steamapps/common/FSX/fsx.exe =
               dir $R/drive/steamapps/common/FSX/SimObjects)",
            "FSXSE: $R/drive/steamapps/common/FSX",
            "FSXSE not taken: $S/steamapps/common/FSX: no fsx.exe");
}

void TestSteam::findsAeroflysUserFolder_data()
{
    caseColumns();
    const QByteArray game = "$S/steamapps/common/Aerofly FS 4";
    const QByteArray sound
        = "game $S 1995890 Aerofly FS 4\ndir " + game + "/scenery\ndir " + game + "/aircraft\n";
    const QByteArray user = "/steamapps/compatdata/1995890/pfx/drive_c/users/steamuser/Documents/"
                            "Aerofly FS 4";
    for (const char *mark : {"main.mcf", "tm.log", "TM.LOG"}) {
        addCase(mark, OnLinux, sound + "file $S" + user + '/' + mark + " =", "AFS4: $S" + user);
    }
    addCase("not on macOS", OnMacOS, sound + "file $S" + user + "/main.mcf =", "");
    addCase("in letter case that differs from the disk's, in another library than the game",
            OnLinux,
            sound + R"(libraries $S = $R/a, $R/b
               dir $R/a/steamapps/compatdata/1995890
               file $R/b/steamapps/compatdata/1995890/pfx/drive_c/users/steamuser/documents/aerofly fs 4/main.mcf =)",
            "AFS4: $R/b/steamapps/compatdata/1995890/pfx/drive_c/users/steamuser/documents/aerofly "
            "fs 4");
    addCase("none in the first prefix",
            OnLinux,
            sound + "libraries $S = $R/b\ndir $S" + user + "\nfile $R/b" + user + "/tm.log =",
            "AFS4: $R/b" + user,
            "AFS4 not taken: $S" + user + ": no main.mcf or tm.log");
    addCase("the game has not been started",
            OnLinux,
            sound + "dir $S/steamapps/compatdata/1995890/pfx/drive_c",
            "",
            "AFS4 not taken: $S" + user + ": no such folder");
    addCase("a game without a prefix",
            OnLinux,
            sound,
            "",
            "AFS4 not taken: " + game + ": it has no Proton prefix");
    addCase("a prefix left by a removed game", OnLinux, "file $S" + user + "/main.mcf =", "");
    addCase("no scenery",
            OnLinux,
            "game $S 1995890 Aerofly FS 4\ndir " + game + "/aircraft\nfile $S" + user
                + "/main.mcf =",
            "",
            "AFS4 not taken: " + game + ": no scenery");
    addCase("no aircraft",
            OnLinux,
            "game $S 1995890 Aerofly FS 4\ndir " + game + "/scenery\nfile " + game
                + "/aircraft =\nfile $S" + user + "/main.mcf =",
            "",
            "AFS4 not taken: " + game + ": no aircraft");
}

void TestSteam::findsThePrefixOfAGame_data()
{
    caseColumns();
    const QByteArray prefix = "/steamapps/compatdata/4711/pfx";
    for (const char *place : {".local/share/Steam",
                              ".steam/steam",
                              ".steam/root",
                              ".steam/debian-installation",
                              ".var/app/com.valvesoftware.Steam/.local/share/Steam",
                              ".var/app/com.valvesoftware.Steam/data/Steam",
                              "snap/steam/common/.local/share/Steam",
                              ".snap/data/steam/common/.local/share/Steam"}) {
        const QByteArray found = QByteArray("$H/") + place + prefix;
        addCase(place,
                OnLinux,
                "dir " + found + "/drive_c\nprefix 4711 = a.xml",
                "4711: " + found + "/a.xml");
    }
    const auto add = [](const char *name, const QByteArray &tree, const QByteArray &found) {
        addCase(name, OnLinux, tree + "\nprefix 4711 = a/b.xml", found);
    };
    const QByteArray drive = prefix + "/drive_c\n";
    const QByteArray both
        = "libraries $S = $R/a, $R/b\ndir $R/a" + drive + "dir $R/b" + drive.trimmed();
    add("the first of two libraries", both, "4711: $R/a" + prefix + "/a/b.xml");
    add("the game's library first",
        both + "\ngame $R/b 4711 Kestrel",
        "4711: $R/b" + prefix + "/a/b.xml");
    add("a manifest that outlived its game",
        both + R"(
               file $R/a/steamapps/appmanifest_4711.acf = AppState { installdir Kestrel StateFlags 4 }
               game $R/b 4711 Kestrel)",
        "4711: $R/b" + prefix + "/a/b.xml");
    add("a game that is still being downloaded",
        both + R"(
               file $R/b/steamapps/appmanifest_4711.acf = AppState { installdir Kestrel StateFlags 1026 })",
        "4711: $R/a" + prefix + "/a/b.xml");
    add("the game's library has no prefix",
        both + "\ngame $S 4711 Kestrel\ndir $S/steamapps/compatdata/4711",
        "4711: $R/a" + prefix + "/a/b.xml");
    add("another root's library",
        "game $S 4711 Kestrel\ndir $H/.steam/root" + drive,
        "4711: $H/.steam/root" + prefix + "/a/b.xml");
    add("a link to the game's folder",
        "dir $R/fast/pfx/drive_c\ndir $S/steamapps/compatdata\n"
        "link $S/steamapps/compatdata/4711 -> $R/fast",
        "4711: $S" + prefix + "/a/b.xml");
    add("letter case that differs from the disk's",
        "dir $S/SteamApps/CompatData/4711/pfx/A\ndir $S/SteamApps/CompatData/4711/pfx/Drive_C",
        "4711: $S/SteamApps/CompatData/4711/pfx/A/b.xml");
    add("the whole file in letter case that differs",
        "dir $S" + drive + "file $S" + prefix + "/A/B.XML =\nfile $S" + prefix + "/A/c.xml =",
        "4711: $S" + prefix + "/A/B.XML");
    add("an exact match before another",
        "dir $S" + drive + "dir $S" + prefix + "/A\nfile $S" + prefix + "/a/B.xml =\nfile $S"
            + prefix + "/a/b.xml =",
        "4711: $S" + prefix + "/a/b.xml");
    add("several that all differ",
        "dir $S" + drive + "file $S" + prefix + "/a/B.xml =\nfile $S" + prefix + "/a/b.XML =",
        "4711: $S" + prefix + "/a/b.xml");
    add("a file in place of a prefix", "file $S" + prefix + " =", "");
    add("a prefix without a drive",
        "dir $S" + prefix + "\nfile $R/b" + prefix
            + "/drive_c =\nlibraries $S = $R/b, $R/c\ndir $R/c" + drive,
        "4711: $R/c" + prefix + "/a/b.xml");
    addCase("a shortcut to a game that is not Steam's",
            OnLinux,
            "dir $S/steamapps/compatdata/4294967295/pfx/drive_c\nprefix 4294967295 = a.xml",
            "4294967295: $S/steamapps/compatdata/4294967295/pfx/a.xml");
    add("a dangling link",
        "dir $S/steamapps/compatdata/4711\nlink $S" + prefix + " -> $R/unplugged",
        "");
    add("none", "game $S 4711 Kestrel\ndir $S/steamapps/compatdata/471", "");
}

// A home folder that is itself a link, as on some systems: Steam writes its target.
void TestSteam::keepsALibraryInTheSandboxsOwnFolder()
{
    DescribedComputer computer(Environment::Linux);
    computer.make(QStringLiteral(R"(
        link $R/var -> $H
        game $H/.var/app/com.valvesoftware.Steam/data/Steam/more 2014780 X-Plane 12
        xplane $H/.var/app/com.valvesoftware.Steam/data/Steam/more/steamapps/common/X-Plane 12
        libraries $H/.var/app/com.valvesoftware.Steam/data/Steam = $S/more)"));
    computer.environment.home = computer.expanded(QStringLiteral("$R/var"));
    QCOMPARE(computer.detect(),
             computer.expanded(QStringLiteral("XP12: "
                                              "$R/var/.var/app/com.valvesoftware.Steam/data/Steam/"
                                              "more/steamapps/common/X-Plane 12")));
}

QTEST_GUILESS_MAIN(TestSteam)
#include "tst_Steam.moc"
