#include "tests/Documents/Document.h"
#include "tests/support/Command.h"
#include "tests/support/Files.h"
#include "tests/support/Literals.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace Tests;

/// The tree is as docs/architecture.md describes it, and the compiler enforces its layers.
class TestArchitecture : public QObject
{
    Q_OBJECT

private slots:
    void namesEverySource();
    void namesNoMissingFile();
    void allowsOnlyDownwardIncludes_data();
    void allowsOnlyDownwardIncludes();

private:
    static QStringList sourceNames();
    static QStringList includeFlags(const QString &folder);
};

// The names of the product's headers and sources, without folder and extension.
QStringList TestArchitecture::sourceNames()
{
    QStringList names;
    for (const auto &folder : {"Controllers"_s,
                               "Doctor"_s,
                               "Library"_s,
                               "Models"_s,
                               "SimDetect"_s,
                               "ViewControllers"_s,
                               "Views"_s,
                               "Widgets"_s}) {
        QDirIterator it(QStringLiteral(ORBWELL_SOURCE "/") + folder,
                        {"*.cpp"_s, "*.h"_s},
                        QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            names.append(QFileInfo(it.next()).baseName());
    }
    names.removeDuplicates();
    return names;
}

void TestArchitecture::namesEverySource()
{
    const QString text = Document("docs/architecture.md"_s).text();
    QStringList missing;
    for (const QString &name : sourceNames()) {
        const QRegularExpression inCode("`[^`\n]*\\b%1\\b[^`\n]*`"_s.arg(name));
        if (!text.contains(inCode))
            missing.append(name);
    }
    QCOMPARE(missing, QStringList());
}

// The first column of its tables.
void TestArchitecture::namesNoMissingFile()
{
    const QStringList names = sourceNames();
    QStringList gone;
    const QStringList lines = Document("docs/architecture.md"_s).text().split(u'\n');
    for (const QString &line : lines) {
        if (!line.startsWith("| `"_s))
            continue;
        const QRegularExpression name("`(?:[A-Za-z]+/)*([A-Za-z]+)(?:\\.cpp)?`"_s);
        auto it = name.globalMatch(line.section(u'|', 1, 1));
        while (it.hasNext()) {
            const QString named = it.next().captured(1);
            if (!names.contains(named) && named != "QuillmontOrbwell"_s)
                gone.append(named);
        }
    }
    QCOMPARE(gone, QStringList());
}

void TestArchitecture::allowsOnlyDownwardIncludes_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("below");
    QTest::addColumn<QString>("above");
    const auto row = [](const char *folder, const char *below, const char *above) {
        QTest::newRow(folder) << QString::fromUtf8(folder) << QString::fromUtf8(below)
                              << QString::fromUtf8(above);
    };
    row("Library/Helpers", "Library/Text/OffsetMap.h", "Models/FlightSimScan.h");
    row("SimDetect", "SimDetect/SimDetect.h", "Models/FlightSimScan.h");
    row("Models", "Library/Models/XmlConfigModel.h", "Controllers/UserFiles.h");
    row("Controllers", "Controllers/UserFiles.h", "Widgets/AddonListItem.h");
    row("Widgets", "Models/FlightSimScan.h", "Views/ScannerView.h");
    row("Views", "Widgets/AddonListItem.h", "ViewControllers/ScanController.h");
    row("ViewControllers/Payload", "SimDetect/SimDetect.h", "Widgets/ResultBox.h");
    row("Doctor", "ViewControllers/Payload/Record.h", "Widgets/ResultBox.h");
    row("ViewControllers", "Views/ScannerView.h", "tests/support/Files.h");
}

void TestArchitecture::allowsOnlyDownwardIncludes()
{
    QFETCH(QString, folder);
    QFETCH(QString, below);
    QFETCH(QString, above);
    const QStringList flags = includeFlags(folder);
    if (flags.isEmpty())
        QSKIP("configured without compile_commands.json");
    const QTemporaryDir elsewhere;
    const auto compile = [&](const QString &header) {
        return Command(
                   QStringLiteral(ORBWELL_COMPILER),
                   flags
                       + QStringList{"-E"_s, "-include"_s, header, "-x"_s, "c++"_s, "/dev/null"_s})
            .in(elsewhere.path())
            .run();
    };
    const CommandResult seen = compile(below);
    QVERIFY2(seen.status == 0, seen.errors.constData());
    const CommandResult unseen = compile(above);
    QVERIFY2(unseen.status != 0 && unseen.errors.contains(above.toUtf8()),
             unseen.errors.constData());
}

// The compiler's include and language options for the sources in @p folder.
QStringList TestArchitecture::includeFlags(const QString &folder)
{
    const QString sources = QStringLiteral(ORBWELL_SOURCE "/") + folder;
    const QJsonArray commands
        = QJsonDocument::fromJson(readFile(QStringLiteral(ORBWELL_BUILD "/compile_commands.json")))
              .array();
    for (const auto &command : commands) {
        const QString file = command.toObject().value("file"_s).toString();
        if (QFileInfo(file).path() != sources)
            continue;
        QStringList flags{"-std=c++17"_s, "-fPIC"_s};
        const QStringList words
            = QProcess::splitCommand(command.toObject().value("command"_s).toString());
        for (int i = 0; i < words.size(); ++i) {
            if (words.at(i).startsWith("-I"_s))
                flags.append(words.at(i));
            else if (words.at(i) == "-isystem"_s)
                flags += words.mid(i, 2);
        }
        return flags;
    }
    return {};
}

QTEST_GUILESS_MAIN(TestArchitecture)
#include "tst_Architecture.moc"
