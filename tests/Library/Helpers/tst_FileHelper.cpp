#include "Library/Helpers/FileHelper.h"

#include "tests/support/Files.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <sys/stat.h>

using Quillmont::Library::Helpers::FileHelper;

/// Saves texts as whole files.
class TestFileHelper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void writesTextInTheEncoding_data();
    void writesTextInTheEncoding();
    void replacesTheContent();
    void createsMissingFolders();
    void changesNothingOnFailure_data();
    void changesNothingOnFailure();
    void failsIfAFolderCannotBeCreated();
    void keepsASymbolicLink();
    void keepsALinkOutOfALinkedFolder_data();
    void keepsALinkOutOfALinkedFolder();
    void opensOnlyFilesThatEnd_data();
    void opensOnlyFilesThatEnd();
    void opensAFileThatIsBeingWritten();
    void reportsOnlyCertainlyMissingFilesAsMissing();

private:
    QString folder() const { return m_sandbox.path(QStringLiteral("config")); }

    QString path() const { return folder() + QStringLiteral("/exe.xml"); }

    Tests::Sandbox m_sandbox;
};

namespace {

// A file that reports an empty size only once, as if another process had just written to it.
class GrowingFile : public QFile
{
public:
    using QFile::QFile;

    qint64 size() const override
    {
        const qint64 before = QFile::size();
        if (before == 0)
            Tests::writeFile(fileName(), "text");
        return before;
    }
};

} // namespace

void TestFileHelper::init()
{
    QDir(folder()).removeRecursively();
}

void TestFileHelper::writesTextInTheEncoding_data()
{
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("none") << QString() << QByteArray("\xc3\xbc\r\n\xe2\x82\xac\n");
    QTest::newRow("UTF-8") << QStringLiteral("UTF-8") << QByteArray("\xc3\xbc\r\n\xe2\x82\xac\n");
    QTest::newRow("Windows-1252") << QStringLiteral("Windows-1252") << QByteArray("\xfc\r\n\x80\n");
    QTest::newRow("lower case") << QStringLiteral("windows-1252") << QByteArray("\xfc\r\n\x80\n");
    QTest::newRow("UTF-16BE") << QStringLiteral("UTF-16BE")
                              << QByteArray("\xfe\xff\0\xfc\0\r\0\n\x20\xac\0\n", 12);
}

void TestFileHelper::writesTextInTheEncoding()
{
    QFETCH(const QString, encoding);
    QFETCH(const QByteArray, bytes);
    QVERIFY(FileHelper::saveText(path(), QStringLiteral("\u00fc\r\n\u20ac\n"), encoding));
    QCOMPARE(Tests::readFile(path()), bytes);
}

void TestFileHelper::replacesTheContent()
{
    Tests::writeFile(path(), "a longer text than the new one");
    QVERIFY(FileHelper::saveText(path(), QStringLiteral("new"), QString()));
    QCOMPARE(Tests::treeOf(folder()),
             (QMap<QString, QByteArray>{{QStringLiteral("exe.xml"), "new"}}));
    QVERIFY(FileHelper::saveText(path(), QString(), QString()));
    QCOMPARE(Tests::readFile(path()), QByteArray());
}

void TestFileHelper::createsMissingFolders()
{
    const QString deep = folder() + QStringLiteral("/one/two words/\u65e5\u672c/exe.xml");
    QVERIFY(FileHelper::saveText(deep, QStringLiteral("new"), QString()));
    QCOMPARE(Tests::readFile(deep), QByteArray("new"));
}

void TestFileHelper::changesNothingOnFailure_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("encoding");
    QTest::newRow("unknown encoding") << QStringLiteral("new") << QStringLiteral("klingon-8");
    QTest::newRow("non-ASCII encoding name")
        << QStringLiteral("new") << QStringLiteral("\u65e5\u672c");
    QTest::newRow("character that the encoding lacks")
        << QStringLiteral("\u65e5") << QStringLiteral("Windows-1252");
}

void TestFileHelper::changesNothingOnFailure()
{
    QFETCH(const QString, text);
    QFETCH(const QString, encoding);
    const Tests::LogCatcher log;
    QVERIFY(!FileHelper::saveText(path(), text, encoding));
    QVERIFY(!QFileInfo::exists(folder()));

    Tests::writeFile(path(), "old");
    QVERIFY(!FileHelper::saveText(path(), text, encoding));
    QCOMPARE(Tests::readFile(path()), QByteArray("old"));
    QCOMPARE(log.debugLines().size(), 2);
    QVERIFY(log.hasDebugLineWith(path()));
}

void TestFileHelper::failsIfAFolderCannotBeCreated()
{
    Tests::writeFile(folder(), "no folder");
    QVERIFY(!FileHelper::saveText(path(), QStringLiteral("new"), QString()));
    QCOMPARE(Tests::readFile(folder()), QByteArray("no folder"));
    QVERIFY(!FileHelper::saveText(QString(), QStringLiteral("new"), QString()));
    QVERIFY(QFile::remove(folder()));
}

void TestFileHelper::keepsASymbolicLink()
{
    Tests::writeFile(folder() + QStringLiteral("/target.xml"), "old");
    QVERIFY(QFile::link(QStringLiteral("target.xml"), path()));
    QVERIFY(FileHelper::saveText(path(), QStringLiteral("new"), QString()));
    QVERIFY(QFileInfo(path()).isSymLink());
    QCOMPARE(Tests::readFile(folder() + QStringLiteral("/target.xml")), QByteArray("new"));
}

void TestFileHelper::keepsALinkOutOfALinkedFolder_data()
{
    QTest::addColumn<QString>("saved");
    QTest::newRow("a link") << path();
    QTest::newRow("a path through it") << folder() + QStringLiteral("/linked/../new/other.xml");
    QTest::newRow("a path through a new folder")
        << folder() + QStringLiteral("/linked/made/../../new/other.xml");
}

// ".." is not resolved as text there; the neighbour of the same name is unchanged.
void TestFileHelper::keepsALinkOutOfALinkedFolder()
{
    QFETCH(const QString, saved);
    Tests::writeFile(folder() + QStringLiteral("/new/other.xml"), "foreign");
    QVERIFY(QDir().mkpath(folder() + QStringLiteral("/far/deep")));
    QVERIFY(QFile::link(QStringLiteral("far/deep"), folder() + QStringLiteral("/linked")));
    if (saved == path()) {
        QVERIFY(QDir().mkpath(folder() + QStringLiteral("/far/new")));
        QVERIFY(QFile::link(QStringLiteral("linked/../new/other.xml"), path()));
    }
    QVERIFY(FileHelper::saveText(saved, QStringLiteral("new"), QString()));
    QCOMPARE(Tests::readFile(folder() + QStringLiteral("/far/new/other.xml")), QByteArray("new"));
    QCOMPARE(Tests::readFile(folder() + QStringLiteral("/new/other.xml")), QByteArray("foreign"));
}

void TestFileHelper::opensOnlyFilesThatEnd_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("forReading");
    QTest::addColumn<bool>("forWriting");
    const auto row = [this](const char *name, bool forReading, bool forWriting) {
        const QString file
            = name[0] == '/' ? QString::fromLatin1(name) : folder() + u'/' + QLatin1String(name);
        QTest::newRow(name) << file << forReading << forWriting;
    };
    row("full", true, true);
    row("empty", true, true);
    row("link", true, true);
    row("missing", false, true);
    row("folder", false, false);
    row("pipe", false, false);
    row("/dev/zero", false, false);
    row("/proc/self/comm", false, false);
    row("/proc/self/pagemap", false, false);
}

void TestFileHelper::opensOnlyFilesThatEnd()
{
    QFETCH(const QString, file);
    QFETCH(const bool, forReading);
    QFETCH(const bool, forWriting);
    Tests::writeFile(folder() + QStringLiteral("/full"), "text");
    Tests::writeFile(folder() + QStringLiteral("/empty"), {});
    QVERIFY(QFile::link(QStringLiteral("full"), folder() + QStringLiteral("/link")));
    QVERIFY(QDir().mkpath(folder() + QStringLiteral("/folder")));
    const QByteArray pipe = QFile::encodeName(folder() + QStringLiteral("/pipe"));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);

    for (const auto mode : {QIODevice::ReadOnly, QIODevice::ReadWrite}) {
        QFile opened(file);
        QString problem;
        const bool expected = mode == QIODevice::ReadOnly ? forReading : forWriting;
        QCOMPARE(FileHelper::open(&opened, mode, &problem), expected);
        QCOMPARE(opened.isOpen(), expected);
        QCOMPARE(problem.isEmpty(), expected);
        if (mode == QIODevice::ReadOnly) // otherwise the message is the system's
            QCOMPARE(problem.startsWith(QLatin1String("not a")), !forWriting);
        if (expected)
            QCOMPARE(opened.readAll(),
                     QByteArray(file.endsWith(u'l') || file.endsWith(u'k') ? "text" : ""));
    }
}

void TestFileHelper::opensAFileThatIsBeingWritten()
{
    Tests::writeFile(path(), {});
    GrowingFile file(path());
    QString problem;
    QVERIFY2(FileHelper::open(&file, QIODevice::ReadOnly, &problem), qPrintable(problem));
    QCOMPARE(file.readAll(), QByteArray("text"));
}

void TestFileHelper::reportsOnlyCertainlyMissingFilesAsMissing()
{
    Tests::writeFile(path(), "text");
    QVERIFY(QFile::link(QStringLiteral("nothing"), folder() + QStringLiteral("/link")));
    QVERIFY(FileHelper::isMissing(folder() + QStringLiteral("/link")));
    QVERIFY(FileHelper::isMissing(folder() + QStringLiteral("/other/exe.xml")));
    QVERIFY(!FileHelper::isMissing(path()));
    // The system refuses to look up a name of that length.
    QVERIFY(!FileHelper::isMissing(folder() + u'/' + QString(300, u'x')));
}

QTEST_APPLESS_MAIN(TestFileHelper)
#include "tst_FileHelper.moc"
