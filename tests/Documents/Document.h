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
    /// @p name is relative to the top of the tree.
    explicit Document(const QString &name);

    /// All of them, those at the top first.
    static QList<Document> all();

    QString name() const { return m_name; }

    /// What it says, each line without its quotation or table marks.
    QString text() const;
    /// The targets of its links and pictures, in order.
    QStringList links() const;
    /// The names that a link can call its headings by.
    QStringList anchors() const;
    /// The commands that it tells a reader to type, each once, without their remarks.
    QStringList commands() const;

private:
    QStringList blockCommands() const;
    QStringList inlineCommands() const;

    QString m_name;
    QStringList m_lines;
};

} // namespace Tests

#endif
