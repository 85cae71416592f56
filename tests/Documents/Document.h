#ifndef TESTS_DOCUMENTS_DOCUMENT_H
#define TESTS_DOCUMENTS_DOCUMENT_H

#include <QList>
#include <QString>
#include <QStringList>

namespace Tests {

/// One of the project's documents, in Markdown.
class Document
{
public:
    /// @p name is relative to the source tree.
    explicit Document(const QString &name);

    /// All documents, the top-level ones first.
    static QList<Document> all();

    QString name() const { return m_name; }

    /// Its text, without quotation and table marks.
    QString text() const;
    /// The targets of its links and pictures, in order.
    QStringList links() const;
    /// The anchors of its headings.
    QStringList anchors() const;
    /// The commands that it tells a reader to type, without duplicates and remarks.
    QStringList commands() const;

private:
    QStringList blockCommands() const;
    QStringList inlineCommands() const;

    QString m_name;
    QStringList m_lines;
};

} // namespace Tests

#endif
