#ifndef TESTS_CATALOGUE_CATALOGUESCHEMA_H
#define TESTS_CATALOGUE_CATALOGUESCHEMA_H

#include <QProcess>
#include <QString>
#include <QStringList>

class QByteArray;

namespace Tests {

/// Validates against a JSON Schema, the catalogue's or another, with Python's module.
class CatalogueSchema
{
public:
    explicit CatalogueSchema(const QString &schema = path());
    ~CatalogueSchema();
    CatalogueSchema(const CatalogueSchema &) = delete;
    CatalogueSchema &operator=(const CatalogueSchema &) = delete;

    /// The path of the catalogue's schema.
    static QString path();

    /// Why validation is not possible: no Python, or no such module. Empty if it is.
    QString problem() const { return m_problem; }

    /// Whether tests may be skipped without it: not on a build machine.
    static bool maySkip() { return !qEnvironmentVariableIsSet("CI"); }

    /// The errors in a document, given as JSON text.
    QStringList complaints(const QByteArray &json);

private:
    bool start(const QString &python, const QString &schema);
    QByteArray answer();

    QProcess m_python;
    QString m_problem;
};

} // namespace Tests

#endif
