#ifndef TESTS_LIBRARY_HELPERS_CORPUS_H
#define TESTS_LIBRARY_HELPERS_CORPUS_H

#include <QString>

namespace Tests {

/// Folders of unusual configuration files, with an index of the expected results.
class Corpus
{
public:
    /// The repository's own folder.
    static QString own();

    /// Another folder, which ORBWELL_XML_CORPUS names; it need not exist.
    static QString foreign();

    /// Adds a row for each XML file in @p folder, with its "path" and the "expected" result:
    /// "accept", "refuse", or anything else if either will do.
    static void addRows(const QString &folder);
};

} // namespace Tests

#endif
