#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "benchmarks/support/Quiet.h"
#include "benchmarks/support/Table.h"
#include "tests/support/Files.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QXmlStreamReader>

using namespace Benchmarks;
using Tests::writeFile;

// Compares adding an entry with reading the same bytes once. Both grow linearly with the file, so
// the ratio shows whether we make a large file slow.

namespace {

using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Library::Models::XmlInsertionModel;

QByteArray document(int size, const QByteArray &encoding)
{
    auto *codec = QTextCodec::codecForName(encoding);
    const int characters = size / (encoding == "UTF-16" ? 2 : 1);
    QString text = QStringLiteral("<?xml version='1.0' encoding='%1'?>\r\n"
                                  "<SimBase.Document Type=\"Launch\" version=\"1,0\">\r\n")
                       .arg(QLatin1String(encoding));
    for (int i = 0; text.size() < characters; ++i)
        text += QStringLiteral(
                    "    <Launch.Addon>\r\n"
                    "        <Name>Tide Gauge %1</Name>\r\n"
                    "        <Disabled>False</Disabled>\r\n"
                    "        <Path>C:\\Program Files\\Tide &amp; Sons\\tide-%1.exe</Path>\r\n"
                    "    </Launch.Addon>\r\n")
                    .arg(i);
    return codec->fromUnicode(text + QStringLiteral("</SimBase.Document>\r\n"));
}

Cost costOfReading(const QByteArray &bytes)
{
    return costOf([&bytes] {
        QXmlStreamReader reader(bytes);
        while (!reader.atEnd())
            reader.readNext();
    });
}

Cost costOfInsertion(const QString &path, const QByteArray &bytes, XmlInsertionModel *model)
{
    writeFile(path, bytes);
    XmlHelper helper(nullptr, path);
    return costOf([&] {
        if (!helper.insertValues(model))
            qFatal("the edit failed");
    });
}

void compareSizes(const QByteArray &encoding, XmlInsertionModel *model, int pairs)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("exe.xml"));
    const QString what = QStringLiteral("XML insertion, %1").arg(QLatin1String(encoding));
    const int part = pairs > 1 ? 1 : 100;
    QVector<double> sizes;
    QVector<double> costs;
    for (const int kilobytes : {20, 2000, 20000}) {
        const QByteArray bytes = document(1000 * kilobytes / part, encoding);
        const Comparison result = compare(
            pairs,
            [&] { return costOfInsertion(path, bytes, model); },
            [&] { return costOfReading(bytes); });
        const QString size = QLocale::c().toString(kilobytes);
        Table::compare(QStringLiteral("%1, %2 KB").arg(what, size), &Cost::cpu, result, 2);
        sizes.append(kilobytes);
        costs.append(result.ours.cpu);
    }
    Table::growth(what, sizes, costs);
}

} // namespace

int main(int argc, char *argv[])
{
    beQuiet();
    const int pairs = Table::pairs(argc, argv);
    XmlInsertionModel model(
        nullptr,
        {{QStringLiteral("parent"), QStringLiteral("Launch.Addon")},
         {QStringLiteral("values"),
          QJsonArray{QJsonObject{{QStringLiteral("key"), QStringLiteral("Name")},
                                 {QStringLiteral("value"), QStringLiteral("Measured")}}}}});
    for (const char *encoding : {"UTF-8", "windows-1252", "UTF-16", "Shift_JIS"})
        compareSizes(encoding, &model, pairs);
    Table::explain(QStringLiteral(
        "XML insertion: one entry into a file with that many others, reading and writing the file "
        "included. Floor: QXmlStreamReader reads the same bytes once."));
    return 0;
}
