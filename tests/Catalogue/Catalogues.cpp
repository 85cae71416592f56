#include "tests/Catalogue/Catalogues.h"

#include "tests/support/Files.h"

#include <QJsonDocument>
#include <QRegularExpression>

namespace Tests {

static QByteArray sourceFile(const QString &relative)
{
    return readFile(QStringLiteral(ORBWELL_SOURCE "/") + relative);
}

QByteArray shippedCatalogue()
{
    return sourceFile(QStringLiteral("catalogue/flightsims.json"));
}

QByteArray sampleCatalogue(const QString &simulators)
{
    return sourceFile(QStringLiteral("sample/flightsims.json.in"))
        .replace("@SIMULATORS@", simulators.toUtf8());
}

QVector<QByteArray> jsonBlocks(const QString &document)
{
    static const QRegularExpression block(QStringLiteral("^```json\\n(.*?)^```$"),
                                          QRegularExpression::MultilineOption
                                              | QRegularExpression::DotMatchesEverythingOption);
    QVector<QByteArray> blocks;
    auto it = block.globalMatch(QString::fromUtf8(sourceFile(document)));
    while (it.hasNext())
        blocks.append(it.next().captured(1).toUtf8());
    return blocks;
}

QString payloadFolder()
{
    return QStringLiteral(ORBWELL_SOURCE "/sample/plugins");
}

QJsonArray entriesOf(const QByteArray &catalogue)
{
    return QJsonDocument::fromJson(catalogue).array();
}

} // namespace Tests
