#include "tests/SimDetect/DescribedComputer.h"

#include "SimDetect/Survey.h"
#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <ctime>

#include <sys/stat.h>

using namespace Quillmont::SimDetect;

namespace Tests {

namespace {

QByteArray unescaped(const QString &text)
{
    QByteArray bytes;
    const QByteArray written = text.toUtf8();
    for (int i = 0; i < written.size(); ++i) {
        const char next = i + 1 < written.size() ? written.at(i + 1) : '\0';
        if (written.at(i) != '\\') {
            bytes.append(written.at(i));
        } else if (next == 'x') {
            bytes.append(QByteArray::fromHex(written.mid(i + 2, 2)));
            i += 3;
        } else {
            bytes.append(next == 'n'       ? '\n'
                             : next == 'r' ? '\r'
                             : next == 't' ? '\t'
                             : next == '0' ? '\0'
                                           : next);
            ++i;
        }
    }
    return bytes;
}

void makeFolder(const QString &path)
{
    if (!QDir().mkpath(path))
        qFatal("cannot make %s", qPrintable(path));
}

} // namespace

DescribedComputer::DescribedComputer(Environment::System system)
{
    environment.system = system;
    environment.root = m_sandbox.root();
    environment.home = m_sandbox.home();
}

void DescribedComputer::make(const QString &description)
{
    static const QRegularExpression line(QStringLiteral("^(\\w+) (.+?)(?: (?:=|->) ?(.*))?$"));
    static const QRegularExpression game(QStringLiteral("^(.+?) ([0-9]+) (.+)$"));
    const auto lines = expanded(description).split(u'\n');
    for (const auto &written : lines) {
        if (written.trimmed().isEmpty())
            continue;
        const auto match = line.match(written.trimmed());
        const QString path = match.captured(2);
        if (match.captured(1) == QLatin1String("game")) {
            const auto parts = game.match(path);
            makeGame(parts.captured(1), parts.captured(2), parts.captured(3));
        } else {
            makeOne(match.captured(1), path, match.captured(3));
        }
    }
}

void DescribedComputer::makeOne(const QString &what, const QString &path, const QString &rest)
{
    if (path.startsWith(u'/'))
        makeFolder(QFileInfo(path).path());
    if (what == QLatin1String("dir"))
        makeFolder(path);
    else if (what == QLatin1String("file"))
        writeFile(path, unescaped(rest));
    else if (what == QLatin1String("link"))
        QFile::link(rest, path);
    else if (what == QLatin1String("fifo"))
        mkfifo(QFile::encodeName(path).constData(), 0600);
    else if (what == QLatin1String("libraries"))
        makeLibraries(path, rest.split(QStringLiteral(", ")));
    else if (what == QLatin1String("xplane"))
        makeXPlane(path);
    else if (what == QLatin1String("variable"))
        environment.variables.insert(path, rest);
    else if (what == QLatin1String("prefix"))
        m_asked.append({path.toLongLong(), rest});
    else
        qFatal("cannot make this: %s %s", qPrintable(what), qPrintable(path));
}

void DescribedComputer::makeGame(const QString &library, const QString &id, const QString &name)
{
    makeFolder(library + QStringLiteral("/steamapps/common/") + name);
    writeFile(library + QStringLiteral("/steamapps/appmanifest_%1.acf").arg(id),
              QStringLiteral("\"AppState\"\n{\n\t\"appid\"\t\t\"%1\"\n\t\"StateFlags\"\t\t\"4\"\n"
                             "\t\"installdir\"\t\t\"%2\"\n\t\"UserConfig\"\n\t{\n\t}\n}\n")
                  .arg(id, name)
                  .toUtf8());
}

void DescribedComputer::makeLibraries(const QString &root, const QStringList &libraries)
{
    QString text = QStringLiteral("\"libraryfolders\"\n{\n");
    for (int i = 0; i < libraries.size(); ++i) {
        text += QStringLiteral("\t\"%1\"\n\t{\n\t\t\"path\"\t\t\"%2\"\n\t\t\"label\"\t\t\"\"\n"
                               "\t\t\"apps\"\n\t\t{\n\t\t\t\"228980\"\t\t\"1\"\n\t\t}\n\t}\n")
                    .arg(QString::number(i), libraries.at(i));
    }
    writeFile(root + QStringLiteral("/config/libraryfolders.vdf"),
              (text + QStringLiteral("}\n")).toUtf8());
}

void DescribedComputer::makeXPlane(const QString &path) const
{
    makeFolder(path + QStringLiteral("/Resources/plugins"));
    if (environment.system == Environment::MacOS)
        makeFolder(path + QStringLiteral("/X-Plane.app"));
    else
        writeFile(path + QStringLiteral("/X-Plane-x86_64"), {});
}

QString DescribedComputer::expanded(const QString &text) const
{
    const bool isMac = environment.system == Environment::MacOS;
    QString result = text;
    result.replace(QLatin1String("$S"),
                   isMac ? QStringLiteral("$H/Library/Application Support/Steam")
                         : QStringLiteral("$H/.local/share/Steam"));
    result.replace(QLatin1String("$L"),
                   isMac ? QStringLiteral("$H/Library/Preferences")
                         : QStringLiteral("$H/.x-plane"));
    result.replace(QLatin1String("$H"), m_sandbox.home());
    return result.replace(QLatin1String("$R"), m_sandbox.root());
}

QString DescribedComputer::detect()
{
    const LogCatcher catcher;
    const std::clock_t before = std::clock();
    Survey survey(environment);
    m_duration = (std::clock() - before) * 1000 / CLOCKS_PER_SEC;
    QStringList lines;
    const auto &paths = survey.paths();
    for (auto it = paths.cbegin(); it != paths.cend(); ++it)
        lines.append(it.key() + QStringLiteral(": ") + it.value());
    for (const auto &asked : qAsConst(m_asked)) {
        const QString prefix = survey.prefix(asked.first);
        if (!prefix.isEmpty())
            lines.append(QStringLiteral("%1: ").arg(asked.first)
                         + survey.fileIn(prefix, asked.second));
    }
    m_log = catcher.debugLines() + catcher.warnings();
    return lines.join(u'\n');
}

} // namespace Tests
