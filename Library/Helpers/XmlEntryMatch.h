#ifndef LIBRARY_HELPERS_XMLENTRYMATCH_H
#define LIBRARY_HELPERS_XMLENTRYMATCH_H

#include "Library/Models/XmlValues.h"

#include <QVector>

namespace Quillmont::Library::Models {
class XmlConfigModel;
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Library::Xml {
struct RootChild;
struct XmlElement;
} // namespace Quillmont::Library::Xml

namespace Quillmont::Library::Helpers {

/// Compares elements of a document with what a model says. White space around a text does not
/// count, everything else does.
class XmlEntryMatch
{
public:
    /// Whether @p child is the one that recognises an entry as ours.
    static bool isKey(const Xml::XmlElement &child, const Models::XmlConfigModel &model);

    /// Whether @p entry is ours.
    static bool isOurs(const Xml::RootChild &entry, const Models::XmlConfigModel &model);

    /// Whether @p entry says all that an entry of ours is to say. A model need not recognise what
    /// it writes; this keeps it from being written again and again.
    static bool isComplete(const Xml::RootChild &entry, const Models::XmlInsertionModel &model);

    /// The child that is to hold each of @p values, by index; -1 where there is none. One that
    /// holds the text already goes before one that has to change.
    static QVector<int> assigned(const Models::XmlValues &values,
                                 const QVector<Xml::XmlElement> &children);
};

} // namespace Quillmont::Library::Helpers

#endif
