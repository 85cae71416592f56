#ifndef TESTS_DOCUMENTS_TEXTLIST_H
#define TESTS_DOCUMENTS_TEXTLIST_H

#include <QByteArray>
#include <QList>
#include <QString>

namespace Tests {

/// A text that can be translated.
struct ListedText
{
    /// The class that says it, with its namespaces.
    QString context;
    QString text;
};

/// Where the list of texts lies.
QString textListPath();

/// One line a text, its class first, with backslash and line ends written as in C++.
QByteArray written(const QList<ListedText> &texts);

/// The texts of a list written in this way.
QList<ListedText> listedTexts(const QByteArray &list);

} // namespace Tests

#endif
