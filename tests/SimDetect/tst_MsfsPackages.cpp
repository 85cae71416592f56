#include "tests/SimDetect/Cases.h"

#include <QTest>

using namespace Tests;

/// How the packages folder of Microsoft Flight Simulator is found in a Proton prefix.
class TestMsfsPackages : public QObject
{
    Q_OBJECT

private slots:
    void findsThePackages_data();

    void findsThePackages() { checkCase(); }

    void requiresTheTypicalFolders_data();

    void requiresTheTypicalFolders() { checkCase(); }

    void ignoresFilesThatNameNoPackages_data();

    void ignoresFilesThatNameNoPackages() { checkCase(); }
};

namespace {

QByteArray prefix2020()
{
    return "$S/steamapps/compatdata/1250410/pfx";
}

QByteArray roaming2020()
{
    return prefix2020() + "/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator";
}

QByteArray prefix2024()
{
    return "$S/steamapps/compatdata/2537590/pfx";
}

QByteArray roaming2024()
{
    return prefix2024()
        + "/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator 2024";
}

QByteArray settings(const QByteArray &content)
{
    return "file " + roaming2020() + "/UserCfg.opt = " + content + "\n";
}

// The text as escapes of a file description, two bytes per character.
QByteArray utf16(const QString &text, bool isBigEndian)
{
    QByteArray bytes = isBigEndian ? "\\xFE\\xFF" : "\\xFF\\xFE";
    for (const QChar character : text) {
        const auto high = QByteArray("\\x") + QByteArray(1, char(character.row())).toHex();
        const auto low = QByteArray("\\x") + QByteArray(1, char(character.cell())).toHex();
        bytes += isBigEndian ? high + low : low + high;
    }
    return bytes;
}

} // namespace

void TestMsfsPackages::findsThePackages_data()
{
    caseColumns();
    const QByteArray packages = roaming2020() + "/Packages";
    const auto add = [packages](const QByteArray &name, const QByteArray &content) {
        addCase(name,
                OnLinux,
                "dir " + packages + "/Community\n" + settings(content),
                "MSFS2020: " + packages);
    };
    const QByteArray place
        = R"(C:\\users\\steamuser\\AppData\\Roaming\\Microsoft Flight Simulator\\Packages)";
    add("one line", "InstalledPackagesPath \"" + place + "\"");
    add("among others",
        R"(Version 66\r\n{Graphics\r\n\tVersion 1\r\n}\r\nInstalledPackagesPath ")" + place
            + R"("\r\n)");
    add("after the path of the next start, in other letter case",
        R"(InstalledPackagesPathNextBoot "D:\\Other"\r\ninstalledpackagespath "c:\\USERS\\SteamUser\\appdata\\ROAMING\\microsoft flight simulator\\PACKAGES\\"\r\n)");
    add("several spaces", R"(\tInstalledPackagesPath \t  ")" + place + "\"  ");
    add("forward slashes",
        R"(InstalledPackagesPath "C:/users/steamuser/AppData/Roaming/Microsoft Flight Simulator/Packages/")");
    add("a byte-order mark", R"(\xEF\xBB\xBFInstalledPackagesPath ")" + place + "\"");
    add("the first of two",
        "InstalledPackagesPath \"" + place + R"("\nInstalledPackagesPath "C:\\gone")");
    add("bytes that are not UTF-8 elsewhere",
        R"(Name \xFF\xFE\n\xE9\nInstalledPackagesPath ")" + place + "\"");
    add("\"..\" components stay on the drive",
        R"(InstalledPackagesPath "C:\\..\\..\\..\\users\\steamuser\\x\\..\\AppData\\Roaming\\Microsoft Flight Simulator\\Packages")");
    const QString line = QStringLiteral(
        "InstalledPackagesPath \"C:\\users\\steamuser\\AppData\\Roaming\\Microsoft Flight "
        "Simulator\\Packages\"\r\n");
    add("UTF-16, low byte first", utf16(line, false));
    add("UTF-16, high byte first", utf16(QStringLiteral("Version 1\r\n") + line, true));
    const auto drive = [](const char *name, const char *rest, const QByteArray &found) {
        addCase(name,
                OnLinux,
                settings(R"(InstalledPackagesPath "D:\\msfs\\packages")") + "dir " + prefix2020()
                    + "/dosdevices\n" + QByteArray(rest).replace("$P", prefix2020()),
                "MSFS2020: " + QByteArray(found).replace("$P", prefix2020()));
    };
    drive("another drive, where its link leads",
          R"(dir $R/games/MSFS/Packages/Official/OneStore
             link $P/dosdevices/d: -> $R/games/)",
          "$R/games/MSFS/Packages");
    drive("another drive, and not one link further",
          R"(dir $R/games/MSFS/Packages/Community
             link $R/mounted -> $R/games
             link $P/dosdevices/d: -> $R/mounted)",
          "$R/mounted/MSFS/Packages");
    drive("another drive inside the prefix",
          R"(dir $P/drive_c/games/MSFS/Packages/Community
             link $P/dosdevices/d: -> ../drive_c/games)",
          "$P/drive_c/games/MSFS/Packages");
    drive("another drive that is a folder of the prefix",
          "dir $P/dosdevices/d:/MSFS/Packages/Community",
          "$P/dosdevices/d:/MSFS/Packages");
    addCase("the drive that is the whole disk",
            OnLinux,
            settings(R"(InstalledPackagesPath "Z:$R/games/packages/")")
                + "dir $R/games/Packages/Community\nlink " + prefix2020() + "/dosdevices/z: -> /",
            "MSFS2020: $R/games/Packages");
    addCase("a drive that is relative to the prefix's real folder",
            OnLinux,
            R"(dir $R/proton/games/P/Community
               file $R/proton/1250410/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator/UserCfg.opt = InstalledPackagesPath "D:\\P"
               dir $S/steamapps/compatdata
               link $S/steamapps/compatdata/1250410 -> $R/proton/1250410
               dir $R/proton/1250410/pfx/dosdevices
               link $R/proton/1250410/pfx/dosdevices/d: -> ../../../games)",
            "MSFS2020: $R/proton/games/P");
    addCase(
        "both editions by their own files",
        OnLinux,
        "dir " + packages + "/Community\n" + settings("InstalledPackagesPath \"" + place + "\"")
            + "\ndir " + roaming2024() + "/Packages/Community\nfile " + roaming2024()
            + R"(/UserCfg.opt = InstalledPackagesPath "C:\\users\\steamuser\\AppData\\Roaming\\Microsoft Flight Simulator 2024\\Packages")",
        "MSFS2020: " + packages + "\nMSFS2024: " + roaming2024() + "/Packages");
    addCase("a prefix in another library than the game's",
            OnLinux,
            R"(libraries $S = $R/a, $R/b
               game $R/a 1250410 MicrosoftFlightSimulator
               dir $R/b/SteamApps/CompatData/1250410/pfx/drive_c/Packages/Community
               file $R/b/SteamApps/CompatData/1250410/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator/UserCfg.opt = InstalledPackagesPath "C:\\Packages")",
            "MSFS2020: $R/b/SteamApps/CompatData/1250410/pfx/drive_c/Packages");
    addCase("the prefix beside the game before one that a moved game left behind",
            OnLinux,
            R"(libraries $S = $R/a, $R/b
               game $R/b 1250410 MicrosoftFlightSimulator
               dir $R/a/steamapps/compatdata/1250410/pfx/drive_c/P/Community
               file $R/a/steamapps/compatdata/1250410/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator/UserCfg.opt = InstalledPackagesPath "C:\\P"
               dir $R/b/steamapps/compatdata/1250410/pfx/drive_c/P/Community
               file $R/b/steamapps/compatdata/1250410/pfx/drive_c/users/steamuser/AppData/Roaming/Microsoft Flight Simulator/UserCfg.opt = InstalledPackagesPath "C:\\P")",
            "MSFS2020: $R/b/steamapps/compatdata/1250410/pfx/drive_c/P");
}

void TestMsfsPackages::requiresTheTypicalFolders_data()
{
    caseColumns();
    for (const char *mark : {"Community", "Official/Steam", "Official/OneStore", "community"}) {
        addCase(mark,
                OnLinux,
                settings(R"(InstalledPackagesPath "C:\\P")") + "dir " + prefix2020() + "/drive_c/P/"
                    + mark,
                "MSFS2020: " + prefix2020() + "/drive_c/P");
    }
    const QByteArray file2024
        = "file " + roaming2024() + R"(/UserCfg.opt = InstalledPackagesPath "C:\\P")" + "\n";
    for (const char *mark : {"Community", "community2024", "Official2024", "StreamedPackages"}) {
        const QByteArray name = QByteArray("2024: ") + mark;
        addCase(name,
                OnLinux,
                file2024 + "dir " + prefix2024() + "/drive_c/P/" + mark,
                "MSFS2024: " + prefix2024() + "/drive_c/P");
    }
    addCase("none",
            OnLinux,
            settings(R"(InstalledPackagesPath "C:\\P")") + "dir " + prefix2020()
                + "/drive_c/P/Official2024\n" + file2024 + "dir " + prefix2024()
                + "/drive_c/P/Official/Steam\nfile " + prefix2024()
                + "/drive_c/P/Community =\nfile " + prefix2024() + "/drive_c/P/StreamedPackages =",
            "",
            "MSFS2020 not taken: " + prefix2020()
                + "/drive_c/P: no Community, Official/Steam or Official/OneStore\n"
                  "MSFS2024 not taken: "
                + prefix2024() + "/drive_c/P: no Community, Official2024 or StreamedPackages");
    addCase("one folder for both editions",
            OnLinux,
            settings(R"(InstalledPackagesPath "Z:\\P")") + "file " + roaming2024()
                + R"(/UserCfg.opt = InstalledPackagesPath "C:\\P")" + "\ndir " + prefix2024()
                + "/drive_c/P/Community\nlink " + prefix2020() + "/dosdevices/z: -> " + prefix2024()
                + "/drive_c",
            "MSFS2020: " + prefix2024() + "/drive_c/P\nMSFS2024: " + prefix2024() + "/drive_c/P");
}

void TestMsfsPackages::ignoresFilesThatNameNoPackages_data()
{
    caseColumns();
    const auto add = [](const char *name,
                        const QByteArray &content,
                        const QByteArray &path,
                        const QByteArray &why) {
        addCase(name,
                OnLinux,
                "dir " + prefix2020() + "/drive_c/P/Community\n" + settings(content),
                "",
                "MSFS2020 not taken: " + path + ": " + why);
    };
    const QByteArray file = roaming2020() + "/UserCfg.opt";
    const QByteArray none = "no InstalledPackagesPath in it";
    add("nothing", "", file, none);
    add("only the path of the next start", R"(InstalledPackagesPathNextBoot "C:\\P")", file, none);
    add("no space", R"(InstalledPackagesPath"C:\\P")", file, none);
    add("another key with the same ending", R"(OldInstalledPackagesPath "C:\\P")", file, none);
    add("no quotes", R"(InstalledPackagesPath C:\\P)", file, none);
    add("one quote", R"(InstalledPackagesPath "C:\\P\nName "x")", file, none);
    add("an empty value", R"(InstalledPackagesPath "")", file, none);
    const QByteArray noDrive = "its InstalledPackagesPath does not begin with a drive";
    add("a POSIX path", "InstalledPackagesPath \"/P\"", file, noDrive);
    add("a network share", R"(InstalledPackagesPath "\\\\server\\P")", file, noDrive);
    add("relative to a drive", R"(InstalledPackagesPath "C:P")", file, noDrive);
    add("a deleted folder",
        R"(InstalledPackagesPath "C:\\Q")",
        prefix2020() + "/drive_c/Q",
        "no such folder");
    add("a missing drive",
        R"(InstalledPackagesPath "E:\\P")",
        prefix2020() + "/dosdevices/e:/P",
        "no such folder");
    addCase("a drive whose link is dangling",
            OnLinux,
            "dir $R/P/Community\n" + settings(R"(InstalledPackagesPath "E:\\P")") + "dir "
                + prefix2020() + "/dosdevices\nlink " + prefix2020()
                + "/dosdevices/e: -> $R/unplugged",
            "",
            "MSFS2020 not taken: " + prefix2020() + "/dosdevices/e:/P: no such folder");
    addCase("a folder in place of the file",
            OnLinux,
            "dir " + file,
            "",
            "MSFS2020 not taken: " + file + ": not a regular file");
    addCase("a prefix that the game has not started in",
            OnLinux,
            "dir " + prefix2020() + "/drive_c",
            "");
}

QTEST_GUILESS_MAIN(TestMsfsPackages)
#include "tst_MsfsPackages.moc"
