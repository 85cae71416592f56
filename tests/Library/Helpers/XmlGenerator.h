#ifndef TESTS_LIBRARY_HELPERS_XMLGENERATOR_H
#define TESTS_LIBRARY_HELPERS_XMLGENERATOR_H

#include <QByteArray>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>

namespace Tests {

/// Generates well-formed documents with all features of XML, and breaks documents. The same seed
/// gives the same documents in every run.
class XmlGenerator
{
public:
    explicit XmlGenerator(quint32 seed);

    /// A well-formed document without an entry of ours.
    QByteArray document();

    /// @p bytes with some bytes changed, removed, doubled or inserted.
    QByteArray broken(QByteArray bytes);

private:
    int number(int end) { return m_random.bounded(end); }

    bool chance(int percent) { return number(100) < percent; }

    QString oneOf(const QStringList &list) { return list.at(number(list.size())); }

    QString words();
    QString blank();
    QString line(int depth);
    QString attributes();
    QString misc();
    QString content(int depth);
    QString element(int depth);
    QString doctype(const QString &root);

    QRandomGenerator m_random;
    QString m_lineEnd;
    QString m_indent;
    bool m_hasEntities = false;
};

} // namespace Tests

#endif
