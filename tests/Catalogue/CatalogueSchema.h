#ifndef TESTS_CATALOGUE_CATALOGUESCHEMA_H
#define TESTS_CATALOGUE_CATALOGUESCHEMA_H

#include <QProcess>
#include <QString>
#include <QStringList>

class QByteArray;

namespace Tests {

/// A JSON Schema, the catalogue's or another, and Python's reading of it.
class CatalogueSchema
{
public:
    explicit CatalogueSchema(const QString &schema = path());
    ~CatalogueSchema();
    CatalogueSchema(const CatalogueSchema &) = delete;
    CatalogueSchema &operator=(const CatalogueSchema &) = delete;

    /// Where the catalogue's schema is.
    static QString path();

    /// Why it cannot be asked: no Python, or one that lacks its module. Empty if it can.
    QString problem() const { return m_problem; }

    /// Whether doing without is all right. On a build machine it is not.
    static bool maySkip() { return !qEnvironmentVariableIsSet("CI"); }

    /// What it has to say against a document, given as JSON text.
    QStringList complaints(const QByteArray &json);

private:
    bool start(const QString &python, const QString &schema);
    QByteArray answer();

    QProcess m_python;
    QString m_problem;
};

} // namespace Tests

#endif
