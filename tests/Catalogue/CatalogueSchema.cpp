#include "tests/Catalogue/CatalogueSchema.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Tests {

CatalogueSchema::CatalogueSchema(const QString &schema)
{
    // The first Python on the path may lack the distribution's modules.
    for (const char *python : {"python3", "/usr/bin/python3"}) {
        if (start(QLatin1String(python), schema))
            return;
    }
}

CatalogueSchema::~CatalogueSchema()
{
    m_python.closeWriteChannel();
    m_python.waitForFinished();
}

QString CatalogueSchema::path()
{
    return QStringLiteral(ORBWELL_SOURCE "/catalogue/flightsims.schema.json");
}

bool CatalogueSchema::start(const QString &python, const QString &schema)
{
    m_python.start(
        python, {QStringLiteral(ORBWELL_SOURCE "/tests/Catalogue/schema-complaints.py"), schema});
    if (answer() == "ready") {
        m_problem.clear();
        return true;
    }
    m_python.waitForFinished();
    m_problem = QStringLiteral("%1 with its module jsonschema is needed: %2")
                    .arg(python, QString::fromLocal8Bit(m_python.readAllStandardError().trimmed()));
    return false;
}

QStringList CatalogueSchema::complaints(const QByteArray &json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return {error.errorString()};
    m_python.write(document.toJson(QJsonDocument::Compact) + '\n');
    const QJsonDocument answered = QJsonDocument::fromJson(answer());
    if (!answered.isArray())
        return {QString::fromLocal8Bit(m_python.readAllStandardError())};
    QStringList complaints;
    const QJsonArray array = answered.array();
    for (const QJsonValue &complaint : array)
        complaints.append(complaint.toString());
    return complaints;
}

QByteArray CatalogueSchema::answer()
{
    while (!m_python.canReadLine() && m_python.waitForReadyRead()) { }
    return m_python.readLine().trimmed();
}

} // namespace Tests
