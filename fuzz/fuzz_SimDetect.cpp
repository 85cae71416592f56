#include "SimDetect/Environment.h"
#include "SimDetect/SimDetect.h"
#include "fuzz/Expect.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <array>
#include <cstddef>
#include <cstdint>

using Fuzz::expect;
using Quillmont::SimDetect::Environment;

namespace {

// A computer with a simulator of each kind; the files that name their folders are the input.
class FuzzedComputer
{
public:
    FuzzedComputer();

    void write(const QList<QByteArray> &contents) const;
    void check(const QString &code, const QString &folder) const;

    Environment environment;

private:
    void makeFolders() const;

    QString path(const char *relative) const { return m_sandbox.path(QString::fromUtf8(relative)); }

    Tests::Sandbox m_sandbox;
};

constexpr auto Library = "home/.local/share/Steam";

// The files read by detection, in the input's order.
constexpr std::array<const char *, 8> Files = {
    "home/.local/share/Steam/config/libraryfolders.vdf",
    "home/.local/share/Steam/steamapps/appmanifest_314160.acf",
    "home/.x-plane/x-plane_install_12.txt",
    "home/.local/share/Steam/steamapps/compatdata/1250410/pfx/drive_c/users/steamuser/AppData/"
    "Roaming/Microsoft Flight Simulator/UserCfg.opt",
    "X-Plane/Log.txt",
    "X-Plane/X-Plane.app/Contents/Info.plist",
    "home/.fgfs/fgdata_2020_3/version",
    "home/.fgfs/FlightGear/FlightGear.ini",
};

FuzzedComputer::FuzzedComputer()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    environment.home = m_sandbox.home();
    environment.root = m_sandbox.root();
    makeFolders();
}

void FuzzedComputer::makeFolders() const
{
    const QString games = path(Library) + QLatin1String("/steamapps/");
    const QString packages = QStringLiteral("compatdata/1250410/pfx/drive_c/Packages/Community");
    for (const QString &folder : {games + QLatin1String("common/FSX/SimObjects"),
                                  games + packages,
                                  path("Drive/steamapps/common/FSX/SimObjects"),
                                  path("X-Plane/Resources/plugins")})
        QDir().mkpath(folder);
    for (const char *file : Files)
        QDir().mkpath(QFileInfo(path(file)).path());
    for (const QString &file : {games + QLatin1String("common/FSX/fsx.exe"),
                                path("Drive/steamapps/common/FSX/fsx.exe"),
                                path("X-Plane/X-Plane-x86_64"),
                                path("home/.fgfs/fgdata_2020_3/defaults.xml")})
        QFile(file).open(QIODevice::WriteOnly);
}

void FuzzedComputer::write(const QList<QByteArray> &contents) const
{
    for (std::size_t i = 0; i < Files.size(); ++i) {
        QFile file(path(Files.at(i)));
        QByteArray content = contents.value(static_cast<int>(i));
        content.replace("$R", m_sandbox.root().toUtf8());
        expect(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
               "the files can be prepared");
    }
}

// Only existing simulators are found, and only under their own codes.
void FuzzedComputer::check(const QString &code, const QString &folder) const
{
    static const QMap<QString, const char *> marks{{QStringLiteral("XP10"), "Resources/plugins"},
                                                   {QStringLiteral("XP11"), "Resources/plugins"},
                                                   {QStringLiteral("XP12"), "Resources/plugins"},
                                                   {QStringLiteral("FSXSE"), "fsx.exe"},
                                                   {QStringLiteral("MSFS2020"), "Community"},
                                                   {QStringLiteral("FGFS"), "defaults.xml"}};
    expect(marks.contains(code), "nothing is found that is not there");
    expect(folder.startsWith(u'/') && !folder.endsWith(u'/')
               && !folder.contains(QLatin1String("//")),
           "a folder is absolute and without a trailing slash");
    const QString resolved = QFileInfo(folder).canonicalFilePath();
    expect(resolved.startsWith(QFileInfo(m_sandbox.root()).canonicalFilePath() + u'/'),
           "a folder is on the computer");
    expect(QFileInfo::exists(folder + u'/' + QLatin1String(marks.value(code))),
           "a folder looks like its simulator");
}

FuzzedComputer &computer()
{
    static FuzzedComputer computer;
    return computer;
}

QList<QByteArray> partsOf(QByteArray bytes)
{
    QList<QByteArray> parts;
    while (parts.size() + 1 < static_cast<int>(Files.size()) && bytes.contains("----\n")) {
        parts.append(bytes.left(bytes.indexOf("----\n")));
        bytes.remove(0, parts.constLast().size() + 5);
    }
    return parts << bytes;
}

} // namespace

// The input is the content of the files, separated by lines "----"; "$R" is the root folder. No
// file turns anything else into a simulator, or one simulator into two.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    computer().write(partsOf(bytes));
    const auto found = Quillmont::SimDetect::simPaths(computer().environment);
    QSet<QString> folders;
    for (auto it = found.cbegin(); it != found.cend(); ++it) {
        computer().check(it.key(), *it);
        folders.insert(QFileInfo(*it).canonicalFilePath());
    }
    expect(folders.size() == found.size(), "no folder is two simulators");
    expect(Quillmont::SimDetect::simPaths(computer().environment) == found,
           "a second detection finds the same");
    return 0;
}
