#ifndef TESTS_DOCUMENTS_TEXTLIST_H
#define TESTS_DOCUMENTS_TEXTLIST_H

#include <QByteArray>
#include <QList>
#include <QString>

namespace Tests {

/// A translatable text.
struct ListedText
{
    /// The class that uses it, with its namespaces.
    QString context;
    QString text;
};

/// The path of the list of texts.
QString textListPath();

/// One line per text, its class first, with backslashes and line ends escaped as in C++.
QByteArray written(const QList<ListedText> &texts);

/// The texts in a list in this format.
QList<ListedText> listedTexts(const QByteArray &list);

} // namespace Tests

#endif
