#include "tests/SimDetect/Cases.h"

#include <QTest>

using namespace Tests;

/// How X-Plane is found by its own lists, by Steam and in well-known folders, with its version.
class TestXPlane : public QObject
{
    Q_OBJECT

private slots:
    void readsItsLists_data();

    void readsItsLists() { checkCase(); }

    void ignoresFoldersWithoutXPlane_data();

    void ignoresFoldersWithoutXPlane() { checkCase(); }

    void readsTheVersion_data();

    void readsTheVersion() { checkCase(); }

    void searchesWellKnownFolders_data();

    void searchesWellKnownFolders() { checkCase(); }

    void prefersSourcesInOrder_data();

    void prefersSourcesInOrder() { checkCase(); }
};

void TestXPlane::readsItsLists_data()
{
    caseColumns();
    addCase("one folder",
            OnBoth,
            R"(xplane $R/sims/X-Plane 12
               file $L/x-plane_install_12.txt = $R/sims/X-Plane 12/)",
            "XP12: $R/sims/X-Plane 12");
    addCase("each version",
            OnBoth,
            R"(xplane $R/a
               xplane $R/b
               xplane $R/c
               file $L/x-plane_install_10.txt = $R/a/\n
               file $L/x-plane_install_11.txt = $R/b/\n
               file $L/x-plane_install_12.txt = $R/c/\n)",
            "XP10: $R/a\nXP11: $R/b\nXP12: $R/c");
    addCase("a deleted folder, empty lines, then a valid folder",
            OnBoth,
            R"(xplane $R/good
               file $L/x-plane_install_12.txt = $R/gone/\n\n \t\n$R/good/\n)",
            "XP12: $R/good",
            "XP12 not taken: $R/gone/: no such folder");
    addCase("two valid lines",
            OnBoth,
            R"(xplane $R/z
               xplane $R/a
               file $L/x-plane_install_12.txt = $R/z/\n$R/a/\n)",
            "XP12: $R/z");
    addCase("a byte-order mark, CRLF and spaces around the line",
            OnBoth,
            R"(xplane $R/good
               file $L/x-plane_install_12.txt = \xEF\xBB\xBF \t$R/good/ \t\r\n)",
            "XP12: $R/good");
    addCase("a list that is too large",
            OnBoth,
            "xplane $R/good\nfile $L/x-plane_install_12.txt = $R/good/\\n"
                + QByteArray(1024 * 1024, '#'),
            "",
            "XP12 not taken: $L/x-plane_install_12.txt: too large");
    addCase("another kind of line end inside a line",
            OnBoth,
            R"(xplane $R/good
               file $L/x-plane_install_12.txt = $R/a\rb\x07\n$R/good/)",
            "XP12: $R/good",
            "XP12 not taken: $R/a?b?: no such folder");
    addCase("a path with redundant components",
            OnBoth,
            R"(xplane $R/sims/good
               dir $R/sims/other
               file $L/x-plane_install_12.txt = $R//sims/./other/../good//)",
            "XP12: $R/sims/good");
    addCase("a path with \"..\" after a link",
            OnBoth,
            R"(xplane $R/real/X-Plane
               dir $R/real/inside
               link $R/link -> $R/real/inside
               xplane $R/X-Plane
               file $L/x-plane_install_12.txt = $R/link/../X-Plane)",
            "XP12: $R/real/X-Plane");
    addCase("a path with \"..\" above the root",
            OnBoth,
            R"(xplane $R/good
               file $L/x-plane_install_12.txt = /../..$R/good)",
            "XP12: $R/good");
    addCase("a non-ASCII name",
            OnBoth,
            R"(xplane $R/Fluggerät
               file $L/x-plane_install_12.txt = $R/Fluggerät/)",
            "XP12: $R/Fluggerät");
    addCase("letter case that differs from the disk's",
            OnBoth,
            R"(xplane $R/Sims/X-Plane 12
               file $L/x-plane_install_12.txt = $R/sims/x-plane 12/)",
            "XP12: $R/Sims/X-Plane 12");
    addCase("a hidden folder in letter case that differs from the disk's",
            OnBoth,
            R"(xplane $R/.Sims/X-Plane 12
               file $L/x-plane_install_12.txt = $R/.sims/X-Plane 12/)",
            "XP12: $R/.Sims/X-Plane 12");
    addCase("a link is reported as the link",
            OnBoth,
            R"(xplane $R/real
               link $R/link -> $R/real
               file $L/x-plane_install_12.txt = $R/link/)",
            "XP12: $R/link");
    addCase("a list that is a folder, and versions that do not exist",
            OnBoth,
            R"(xplane $R/good
               dir $L/x-plane_install_10.txt
               file $L/x-plane_install_13.txt = $R/good/
               file $L/x-plane_install_9.txt = $R/good/)",
            "",
            "XP10 not taken: $L/x-plane_install_10.txt: not a regular file");
    addCase("a list that is a link",
            OnBoth,
            R"(xplane $R/good
               link $L/x-plane_install_12.txt -> $R/list
               file $R/list = $R/good/)",
            "XP12: $R/good");
    addCase("the other system's list",
            OnLinux,
            R"(xplane $R/good
               file $H/Library/Preferences/x-plane_install_12.txt = $R/good/)",
            "");
    addCase("an empty list", OnBoth, "file $L/x-plane_install_12.txt =", "");
}

void TestXPlane::ignoresFoldersWithoutXPlane_data()
{
    caseColumns();
    addCase("lines with other folders, then a valid one",
            OnBoth,
            R"(xplane $R/good
               xplane $H/home one
               file $R/plain =
               dir $R/empty
               dir $R/no executable/Resources/plugins
               file $R/no plugins/X-Plane-x86_64 =
               file $R/no folder/X-Plane.exe =
               file $R/no folder/Resources/plugins =
               file $L/x-plane_install_12.txt = good/\n~/home one/\nDisk:X-Plane 12:\n$R/plain\n$R/empty\n$R/no executable\n$R/no plugins\n$R/no folder\n$R/\xFF\xFE\n$R/good/\n)",
            "XP12: $R/good",
            "XP12 not taken: good/: not an absolute path\n"
            "XP12 not taken: ~/home one/: not an absolute path\n"
            "XP12 not taken: Disk:X-Plane 12:: not an absolute path\n"
            "XP12 not taken: $R/plain: not a folder\n"
            "XP12 not taken: $R/empty: no Resources/plugins\n"
            "XP12 not taken: $R/no executable: no X-Plane executable\n"
            "XP12 not taken: $R/no plugins: no Resources/plugins\n"
            "XP12 not taken: $R/no folder: no Resources/plugins\n"
            "XP12 not taken: $R/\xEF\xBF\xBD\xEF\xBF\xBD: no such folder");
    addCase("the executables of other systems",
            OnBoth,
            R"(dir $R/mac/Resources/plugins
               dir $R/mac/X-Plane.app
               dir $R/win/Resources/plugins
               file $R/win/X-Plane.exe =
               dir $R/lin/Resources/plugins
               file $R/lin/X-Plane-x86_64 =
               file $L/x-plane_install_10.txt = $R/mac
               file $L/x-plane_install_11.txt = $R/win
               file $L/x-plane_install_12.txt = $R/lin)",
            "XP10: $R/mac\nXP11: $R/win\nXP12: $R/lin");
    addCase("executables of other names",
            OnBoth,
            R"(dir $R/mac/Resources/plugins
               dir $R/mac/X-Plane 11.app
               dir $R/lin/Resources/plugins
               file $R/lin/X-Plane 12-x86_64 =
               file $L/x-plane_install_11.txt = $R/mac
               file $L/x-plane_install_12.txt = $R/lin)",
            "XP11: $R/mac\nXP12: $R/lin");
    addCase("names that are not executables",
            OnBoth,
            R"(dir $R/sim/Resources/plugins
               file $R/sim/._X-Plane.app =
               file $R/sim/.X-Plane-x86_64 =
               dir $R/sim/X-Plane 12 Installer.app
               file $R/sim/X-Plane Installer.exe =
               file $R/sim/X-Plane 12 Installer-x86_64 =
               file $R/sim/X-Plane-i686 =
               file $R/sim/X-Plane_64 =
               file $R/sim/My X-Plane.exe =
               file $R/sim/X-Plane.exe.bak =
               file $R/sim/Plane Maker.exe =
               file $L/x-plane_install_12.txt = $R/sim)",
            "",
            "XP12 not taken: $R/sim: no X-Plane executable");
    addCase("a dangling link and a loop",
            OnBoth,
            R"(link $R/dead -> $R/nowhere
               link $R/loop -> $R/loop
               link $R/one -> $R/other
               link $R/other -> $R/one
               file $L/x-plane_install_12.txt = $R/dead\n$R/loop/a\n$R/one)",
            "",
            "XP12 not taken: $R/dead: no such folder\n"
            "XP12 not taken: $R/loop/a: no such folder\n"
            "XP12 not taken: $R/one: no such folder");
    addCase("one folder under several paths is turned down once",
            OnBoth,
            R"(dir $R/empty
               link $R/link -> $R/empty
               file $L/x-plane_install_12.txt = $R/link\n$R/empty\n$R/empty/\n$R/./EMPTY\n$R/gone\n$R/gone)",
            "",
            "XP12 not taken: $R/link: no Resources/plugins\n"
            "XP12 not taken: $R/gone: no such folder");
    const QByteArray shown = '/' + QByteArray(499, 'p');
    addCase("the log shows the beginning of a long path",
            OnBoth,
            "file $L/x-plane_install_12.txt = " + shown + "\\n" + shown + 'p',
            "",
            QByteArray("XP12 not taken: " + shown + ": no such folder\n").repeated(2));
    addCase("the log shows a name in any script",
            OnBoth,
            "file $L/x-plane_install_12.txt = /飛行🛬",
            "",
            "XP12 not taken: /飛行🛬: no such folder");
    for (const int others : {255, 256}) {
        addCase("after " + QByteArray::number(others) + " deleted folders",
                OnBoth,
                "xplane $R/good\nfile $L/x-plane_install_12.txt = "
                    + QByteArray("$R/gone\\n").repeated(others) + "$R/good",
                others < 256 ? "XP12: $R/good" : "",
                "XP12 not taken: $R/gone: no such folder");
    }
    addCase("control characters are not written to the log",
            OnBoth,
            R"(file $L/x-plane_install_12.txt = $R/a\0b\x1B[31m)",
            "",
            "XP12 not taken: $R/a?b?[31m: no such folder");
}

void TestXPlane::readsTheVersion_data()
{
    caseColumns();
    addCase("two lists name one folder whose log says 12",
            OnBoth,
            R"(xplane $R/sim
               file $R/sim/Log.txt = Log.txt for X-Plane 12.0.9-rc1 (build 120901)\n
               file $L/x-plane_install_11.txt = $R/sim/\n
               file $L/x-plane_install_12.txt = $R/sim/\n)",
            "XP12: $R/sim",
            "XP11 not taken: $R/sim: it is X-Plane 12");
    addCase("two lists name one folder whose log says 11",
            OnBoth,
            R"(xplane $R/sim
               file $R/sim/Log.txt = log.txt for x-plane 11.55r2 (build 115502)\r\n
               file $L/x-plane_install_11.txt = $R/sim/\n
               file $L/x-plane_install_12.txt = $R/sim/\n)",
            "XP11: $R/sim",
            "XP12 not taken: $R/sim: it is X-Plane 11");
    addCase("two lists name one folder that does not say its version",
            OnBoth,
            R"(xplane $R/sim
               file $L/x-plane_install_11.txt = $R/sim/\n
               file $L/x-plane_install_12.txt = $R/sim/\n)",
            "XP12: $R/sim",
            "XP11 not taken: $R/sim: it is taken as XP12");
    addCase("two lists name one folder, one of them by a link",
            OnBoth,
            R"(xplane $R/sim
               link $R/link -> $R/sim
               file $L/x-plane_install_11.txt = $R/sim/\n
               file $L/x-plane_install_12.txt = $R/link/\n)",
            "XP12: $R/link",
            "XP11 not taken: $R/sim: it is taken as XP12");
    addCase("listed as another version only",
            OnBoth,
            R"(xplane $R/sim
               file $R/sim/Log.txt = Log.txt for X-Plane 12.
               file $L/x-plane_install_11.txt = $R/sim/\n)",
            "XP12: $R/sim",
            "XP11 not taken: $R/sim: it is X-Plane 12");
    addCase("its own list before another version's",
            OnBoth,
            R"(xplane $R/upgraded
               xplane $R/own
               file $R/upgraded/Log.txt = Log.txt for X-Plane 12.
               file $L/x-plane_install_11.txt = $R/upgraded/\n
               file $L/x-plane_install_12.txt = $R/own/\n)",
            "XP12: $R/own",
            "XP11 not taken: $R/upgraded: it is X-Plane 12");
    addCase("another version's list before Steam",
            OnBoth,
            R"(xplane $R/upgraded
               file $R/upgraded/Log.txt = Log.txt for X-Plane 12.
               file $L/x-plane_install_11.txt = $R/upgraded/\n
               game $S 2014780 X-Plane 12
               xplane $S/steamapps/common/X-Plane 12)",
            "XP12: $R/upgraded",
            "XP11 not taken: $R/upgraded: it is X-Plane 12");
    addCase("an unsupported version",
            OnBoth,
            R"(xplane $R/sim
               file $R/sim/Log.txt = Log.txt for X-Plane 13.0
               file $L/x-plane_install_12.txt = $R/sim/\n)",
            "",
            "XP12 not taken: $R/sim: it is X-Plane 13");
    addCase("the bundle, if there is no log",
            OnBoth,
            R"(xplane $R/sim
               file $R/sim/X-Plane.app/Contents/Info.plist = <?xml version="1.0" encoding="UTF-8"?>\n<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">\n<plist version="1.0">\n<dict>\n<key>Types</key><array><dict><key>CFBundleShortVersionString</key><string>10</string></dict></array>\n<key>CFBundleName</key>\n<string>X-Plane</string>\n<key>CFBundleShortVersionString</key>\n<string>11.55</string>\n</dict>\n</plist>\n
               file $L/x-plane_install_12.txt = $R/sim/\n)",
            "XP11: $R/sim",
            "XP12 not taken: $R/sim: it is X-Plane 11");
    addCase("the log before the bundle, the bundle before the installer",
            OnBoth,
            R"(xplane $R/a
               xplane $R/b
               file $R/a/Log.txt = Log.txt for X-Plane 10.51\n
               file $R/a/X-Plane.app/Contents/Info.plist = <plist><dict><key>CFBundleShortVersionString</key><string>11.55</string></dict></plist>
               file $R/b/X-Plane.app/Contents/Info.plist = <plist><dict><key>CFBundleShortVersionString</key><string>11.55</string></dict></plist>
               file $R/b/X-Plane 12 Installer =
               file $L/x-plane_install_12.txt = $R/a/\n$R/b/\n)",
            "XP10: $R/a\nXP11: $R/b",
            "XP12 not taken: $R/a: it is X-Plane 10\n"
            "XP12 not taken: $R/b: it is X-Plane 11");
    addCase("the installer, if there is nothing else",
            OnBoth,
            R"(xplane $R/sim
               dir $R/sim/X-Plane 12 Installer.app
               dir $R/sim/X-Plane 11 Installer.app
               file $R/sim/._X-Plane 11 Installer.app =
               file $L/x-plane_install_11.txt = $R/sim/\n)",
            "XP12: $R/sim",
            "XP11 not taken: $R/sim: it is X-Plane 12");
    addCase("a log whose first line has no version",
            OnBoth,
            R"(xplane $R/sim
               file $R/sim/Log.txt = \xFF\xFE\nLog.txt for X-Plane 11.55\n
               file $R/sim/X-Plane.app/Contents/Info.plist = bplist00
               file $R/sim/X-Plane 12 Installer Linux =
               file $L/x-plane_install_11.txt = $R/sim/\n)",
            "XP12: $R/sim",
            "XP11 not taken: $R/sim: it is X-Plane 12");
    addCase("an unreadable log",
            OnBoth,
            R"(xplane $R/a
               xplane $R/b
               fifo $R/a/Log.txt
               dir $R/b/Log.txt
               fifo $R/b/X-Plane.app/Contents/Info.plist
               file $L/x-plane_install_11.txt = $R/a/
               file $L/x-plane_install_12.txt = $R/b/)",
            "XP11: $R/a\nXP12: $R/b");
    addCase("a log with bytes that are not UTF-8 after the version",
            OnBoth,
            R"(xplane $R/sim
               file $R/sim/Log.txt = Log.txt for X-Plane 12.1 \xE9\xFF\0\n
               file $L/x-plane_install_11.txt = $R/sim/\n)",
            "XP12: $R/sim",
            "XP11 not taken: $R/sim: it is X-Plane 12");
    addCase("Steam's game, updated in place",
            OnBoth,
            R"(game $S 269950 X-Plane 11
               xplane $S/steamapps/common/X-Plane 11
               file $S/steamapps/common/X-Plane 11/Log.txt = Log.txt for X-Plane 12.)",
            "XP12: $S/steamapps/common/X-Plane 11",
            "XP11 not taken: $S/steamapps/common/X-Plane 11: it is X-Plane 12");
    addCase("a well-known folder, updated in place",
            OnBoth,
            R"(xplane $H/X-Plane 11
               file $H/X-Plane 11/Log.txt = Log.txt for X-Plane 12.)",
            "XP12: $H/X-Plane 11",
            "XP11 not taken: $H/X-Plane 11: it is X-Plane 12");
    addCase("a list has priority over a folder's name",
            OnBoth,
            R"(xplane $H/X-Plane 12
               file $L/x-plane_install_11.txt = $H/X-Plane 12/)",
            "XP11: $H/X-Plane 12",
            "XP12 not taken: $H/X-Plane 12: it is taken as XP11");
}

void TestXPlane::searchesWellKnownFolders_data()
{
    caseColumns();
    addCase("in the home folder, then on the desktop",
            OnBoth,
            R"(xplane $H/X-Plane 10
               xplane $H/Desktop/X-Plane 10
               xplane $H/Desktop/X-Plane 11)",
            "XP10: $H/X-Plane 10\nXP11: $H/Desktop/X-Plane 11");
    addCase("for all users of Linux",
            OnLinux,
            R"(xplane $R/opt/X-Plane 12
               xplane $R/Applications/X-Plane 11
               xplane $H/Applications/X-Plane 10)",
            "XP12: $R/opt/X-Plane 12");
    addCase("in the applications folder of macOS",
            OnMacOS,
            R"(xplane $R/opt/X-Plane 10
               xplane $R/Applications/X-Plane 12
               xplane $H/Applications/X-Plane 12
               xplane $H/Applications/X-Plane 11)",
            "XP11: $H/Applications/X-Plane 11\nXP12: $R/Applications/X-Plane 12");
    addCase("an empty folder is ignored",
            OnBoth,
            R"(dir $H/X-Plane 12
               xplane $H/Desktop/X-Plane 12)",
            "XP12: $H/Desktop/X-Plane 12",
            "XP12 not taken: $H/X-Plane 12: no Resources/plugins");
}

void TestXPlane::prefersSourcesInOrder_data()
{
    caseColumns();
    addCase("its list before Steam before well-known folders",
            OnBoth,
            R"(xplane $R/listed
               file $L/x-plane_install_12.txt = $R/listed
               game $S 2014780 X-Plane 12
               xplane $S/steamapps/common/X-Plane 12
               game $S 269950 X-Plane 11
               xplane $S/steamapps/common/X-Plane 11
               xplane $H/X-Plane 12
               xplane $H/X-Plane 11
               xplane $H/X-Plane 10)",
            "XP10: $H/X-Plane 10\nXP11: $S/steamapps/common/X-Plane 11\nXP12: $R/listed");
    addCase("each invalid source is skipped for the next",
            OnBoth,
            R"(file $L/x-plane_install_12.txt = $R/gone
               game $S 2014780 X-Plane 12
               xplane $H/X-Plane 12)",
            "XP12: $H/X-Plane 12",
            "XP12 not taken: $R/gone: no such folder\n"
            "XP12 not taken: $S/steamapps/common/X-Plane 12: no Resources/plugins");
    addCase("the path that was seen first",
            OnBoth,
            R"(game $S 2014780 X-Plane 12
               xplane $S/steamapps/common/X-Plane 12
               link $R/link -> $S/steamapps/common/X-Plane 12
               file $L/x-plane_install_12.txt = $R/link/)",
            "XP12: $R/link");
}

QTEST_GUILESS_MAIN(TestXPlane)
#include "tst_XPlane.moc"
