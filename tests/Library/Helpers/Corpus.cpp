#include "tests/Library/Helpers/Corpus.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QTest>

namespace Tests {

namespace {

// The index's first column is a file, the last one the expected result.
QMap<QString, QString> expectations(const QString &folder)
{
    QMap<QString, QString> result;
    QFile index(folder + QStringLiteral("/INDEX.tsv"));
    if (!index.open(QIODevice::ReadOnly))
        return result;
    const QStringList lines = QString::fromUtf8(index.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        result.insert(line.section(u'\t', 0, 0), line.section(u'\t', -1).trimmed());
    return result;
}

} // namespace

QString Corpus::own()
{
    return QStringLiteral(ORBWELL_SOURCE "/tests/Library/corpus");
}

QString Corpus::foreign()
{
    return qEnvironmentVariable("ORBWELL_XML_CORPUS",
                                QStringLiteral(ORBWELL_SOURCE "/../shared/xml-corpus"));
}

void Corpus::addRows(const QString &folder)
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    const QMap<QString, QString> expected = expectations(folder);
    QDirIterator it(folder, {QStringLiteral("*.xml")}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString name = QDir(folder).relativeFilePath(path);
        QTest::newRow(qPrintable(name)) << path << expected.value(name);
    }
}

} // namespace Tests
