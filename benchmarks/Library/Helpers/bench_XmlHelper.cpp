#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTextStream>
#include <QXmlStreamReader>

#include <algorithm>
#include <vector>

// Compares adding and removing an entry with reading the same bytes once. Both grow with the file
// alike, so the ratio says whether a big file is slow because of us.

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

double millisecondsToRead(const QByteArray &bytes)
{
    QElapsedTimer timer;
    timer.start();
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd())
        reader.readNext();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

template <typename Operation>
double millisecondsToRun(const Operation &operation)
{
    QElapsedTimer timer;
    timer.start();
    if (!operation())
        qFatal("the edit failed");
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values.at(values.size() / 2);
}

void compare(const QString &path, int size, const QByteArray &encoding, XmlInsertionModel *model)
{
    constexpr int pairs = 7;
    const QByteArray bytes = document(size, encoding);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    file.close();

    XmlHelper helper(nullptr, path);
    std::vector<double> read;
    std::vector<double> insertion;
    std::vector<double> removal;
    for (int i = 0; i < pairs; ++i) {
        read.push_back(millisecondsToRead(bytes));
        insertion.push_back(millisecondsToRun([&] { return helper.insertValues(model); })
                            / read.back());
        removal.push_back(millisecondsToRun([&] { return helper.removeConfig(model); })
                          / read.back());
    }
    QTextStream(stdout)
        << QStringLiteral("%1 %2 bytes: read %3 ms, insertion %4 times that, removal %5 times\n")
               .arg(QLatin1String(encoding), -12)
               .arg(bytes.size(), 9)
               .arg(median(read), 8, 'f', 2)
               .arg(median(insertion), 0, 'f', 2)
               .arg(median(removal), 0, 'f', 2);
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    XmlInsertionModel model(
        nullptr,
        {{QStringLiteral("parent"), QStringLiteral("Launch.Addon")},
         {QStringLiteral("values"),
          QJsonArray{QJsonObject{{QStringLiteral("key"), QStringLiteral("Name")},
                                 {QStringLiteral("value"), QStringLiteral("Measured")}}}}});
    for (const char *encoding : {"UTF-8", "windows-1252", "UTF-16", "Shift_JIS"})
        for (const int size : {20 * 1000, 2 * 1000 * 1000, 20 * 1000 * 1000})
            compare(folder.filePath(QStringLiteral("exe.xml")), size, encoding, &model);
    return 0;
}
