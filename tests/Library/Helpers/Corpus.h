#ifndef TESTS_LIBRARY_HELPERS_CORPUS_H
#define TESTS_LIBRARY_HELPERS_CORPUS_H

#include <QString>

namespace Tests {

/// Folders of configuration files, each with something special about it, and an index that says
/// what is to become of an edit.
class Corpus
{
public:
    /// The repository's own.
    static QString own();

    /// Another one, which ORBWELL_XML_CORPUS names; it need not exist.
    static QString foreign();

    /// A row for each XML file of @p folder, with "path" and what is "expected": "accept",
    /// "refuse", or something else where either will do.
    static void addRows(const QString &folder);
};

} // namespace Tests

#endif
