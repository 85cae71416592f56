#include "tests/support/Command.h"
#include "tests/support/Sandbox.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

using namespace Tests;

/// The packages that cpack makes. script/package-test installs the Debian package into a separate
/// system.
class TestPackages : public QObject
{
    Q_OBJECT

private slots:
    void haveOneFolderWithTheWholeTreeInTheArchive();
    void dependOnQtInTheDebianPackage();
    void useOnlyUsrInTheDebianPackage();
    void haveCopyrightAndChangesInTheDebianPackage();

private:
    QString make(const QString &generator, const QString &name);
    QString field(const QString &name);
    QStringList contents();
    QString debianPackage();

    Sandbox m_sandbox;
    QString m_debianPackage;
};

QString TestPackages::make(const QString &generator, const QString &name)
{
    const QString folder = m_sandbox.path(generator);
    const CommandResult result = Command(QStringLiteral(ORBWELL_CPACK),
                                         {QStringLiteral("-G"),
                                          generator,
                                          QStringLiteral("-B"),
                                          folder,
                                          QStringLiteral("--config"),
                                          QStringLiteral(ORBWELL_BUILD "/CPackConfig.cmake")})
                                     .run();
    const QStringList made = QDir(folder).entryList({name}, QDir::Files);
    if (result.status != 0 || made.size() != 1) {
        qWarning("%s%s", result.output.constData(), result.errors.constData());
        return {};
    }
    return folder + u'/' + made.first();
}

QString TestPackages::debianPackage()
{
    if (m_debianPackage.isEmpty())
        m_debianPackage = make(QStringLiteral("DEB"), QStringLiteral("*.deb"));
    return m_debianPackage;
}

QString TestPackages::field(const QString &name)
{
    const CommandResult result
        = Command(QStringLiteral("dpkg-deb"), {QStringLiteral("--field"), debianPackage(), name})
              .run();
    return QString::fromUtf8(result.output.trimmed());
}

QStringList TestPackages::contents()
{
    const CommandResult result
        = Command(QStringLiteral("dpkg-deb"), {QStringLiteral("--contents"), debianPackage()})
              .run();
    return QString::fromUtf8(result.output).split(u'\n', Qt::SkipEmptyParts);
}

void TestPackages::haveOneFolderWithTheWholeTreeInTheArchive()
{
    const QString archive = make(QStringLiteral("TGZ"), QStringLiteral("*.tar.gz"));
    QVERIFY(!archive.isEmpty());
    const CommandResult result
        = Command(QStringLiteral("tar"),
                  {QStringLiteral("--list"), QStringLiteral("--file"), archive})
              .run();
    const QStringList files = QString::fromUtf8(result.output).split(u'\n', Qt::SkipEmptyParts);

    const QString folder = QFileInfo(archive).fileName().chopped(int(qstrlen(".tar.gz"))) + u'/';
    QVERIFY(folder.contains(QStringLiteral("-" ORBWELL_VERSION "-")));
    for (const QString &file : files)
        QVERIFY2(file.startsWith(folder), qPrintable(file));
    const QString together = folder + QStringLiteral(ORBWELL_LIBDIR "/quillmont-orbwell/");
    QVERIFY(files.contains(folder + QStringLiteral("bin/QuillmontOrbwell")));
    QVERIFY(files.contains(together + QStringLiteral("flightsims.json")));
    QVERIFY(files.contains(together + QStringLiteral("plugins/X-Plane/about.txt")));
}

static bool canMakeDebianPackages()
{
    return Command::exists(QStringLiteral("dpkg-shlibdeps"))
        && Command::exists(QStringLiteral("dpkg-deb")) && Command::exists(QStringLiteral("file"));
}

void TestPackages::dependOnQtInTheDebianPackage()
{
    if (!canMakeDebianPackages())
        QSKIP("needs dpkg-dev and file");
    QCOMPARE(field(QStringLiteral("Package")), QStringLiteral("quillmont-orbwell"));
    QCOMPARE(field(QStringLiteral("Version")), QStringLiteral(ORBWELL_VERSION));
    QVERIFY(field(QStringLiteral("Depends")).contains(QStringLiteral("libqt5widgets5 (>= ")));
}

void TestPackages::useOnlyUsrInTheDebianPackage()
{
    if (!canMakeDebianPackages())
        QSKIP("needs dpkg-dev and file");
    const QRegularExpression harmless(
        QStringLiteral("^(drwxr-xr-x|lrwxrwxrwx|-rw-r--r--|-rwxr-xr-x) root/root .* \\./usr/"));
    const QStringList files = contents();
    QVERIFY(!files.isEmpty());
    for (const QString &file : files)
        QVERIFY2(harmless.match(file).hasMatch(), qPrintable(file));
    const QStringList programs = files.filter(QRegularExpression(QStringLiteral("^-rwx")));
    QCOMPARE(programs.size(), 2);
    for (const char *name : {"QuillmontOrbwell", "orbwell-doctor"})
        QCOMPARE(
            programs.filter(QStringLiteral("/quillmont-orbwell/") + QLatin1String(name)).size(), 1);
}

void TestPackages::haveCopyrightAndChangesInTheDebianPackage()
{
    if (!canMakeDebianPackages())
        QSKIP("needs dpkg-dev and file");
    const QString files = contents().join(u'\n');
    for (const char *name : {"copyright", "changelog.gz", "CHANGELOG.md.gz"})
        QVERIFY2(files.contains(QStringLiteral("./usr/share/doc/quillmont-orbwell/")
                                + QLatin1String(name)),
                 name);
}

QTEST_GUILESS_MAIN(TestPackages)
#include "tst_Packages.moc"
