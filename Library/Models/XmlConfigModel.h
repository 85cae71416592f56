#ifndef LIBRARY_MODELS_XMLCONFIGMODEL_H
#define LIBRARY_MODELS_XMLCONFIGMODEL_H

#include <QObject>
#include <QString>

class QJsonObject;

namespace Quillmont::Library::Models {

/// Says in which XML file our entry stands and how it is recognised there. Built from a
/// catalogue entry's "config" object; a missing or wrongly typed value gives the default.
class XmlConfigModel : public QObject
{
    Q_OBJECT

public:
    XmlConfigModel(QObject *parent, const QJsonObject &json);

    /// Whether there is an entry to speak of. Without a "parent" or "values" there is none, and
    /// the members below are empty.
    bool describesEntry() const { return !element.isEmpty(); }

    QString path; ///< The file, "/"-separated, relative to the per-user application-data root.
    QString element; ///< Name of our element, a child of the document's root element.
    QString key; ///< Name of the child element that recognises an element as ours.
    QString value; ///< That child's text, compared trimmed.
    bool deleteParent = true; ///< Whether removal takes the whole element out, or only that child.
};

} // namespace Quillmont::Library::Models

#endif
