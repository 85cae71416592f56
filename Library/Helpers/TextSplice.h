#ifndef LIBRARY_HELPERS_TEXTSPLICE_H
#define LIBRARY_HELPERS_TEXTSPLICE_H

#include <QString>
#include <QVector>

namespace Quillmont::Library::Helpers {

/// One change of a text: what stands from begin up to end makes room for something else.
struct TextSplice
{
    int begin;
    int end;
    QString text;
};

/// Changes of one text, ascending and apart from each other.
using TextSplices = QVector<TextSplice>;

} // namespace Quillmont::Library::Helpers

#endif
