#ifndef LIBRARY_TEXT_TEXTSPLICE_H
#define LIBRARY_TEXT_TEXTSPLICE_H

#include <QString>
#include <QVector>

namespace Quillmont::Library::Text {

/// One change of a text: something else takes the place of the characters from begin up to end.
struct TextSplice
{
    int begin;
    int end;
    QString text;
};

/// Changes of one text, in ascending order and without overlap.
using TextSplices = QVector<TextSplice>;

} // namespace Quillmont::Library::Text

#endif
