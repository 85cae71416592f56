#ifndef LIBRARY_MODELS_XMLCONFIGMODEL_H
#define LIBRARY_MODELS_XMLCONFIGMODEL_H

#include <QObject>
#include <QString>

class QJsonObject;

namespace Quillmont::Library::Models {

/// Which XML file our add-on element belongs in, and how it is recognised there. Built from the
/// "config" object of a catalogue entry; a missing or wrongly typed value gives the default.
class XmlConfigModel : public QObject
{
    Q_OBJECT

public:
    XmlConfigModel(QObject *parent, const QJsonObject &json);

    /// Whether an element is described. Without "parent" or "values" none is, and the members that
    /// recognise it are empty.
    bool describesEntry() const { return !element.isEmpty(); }

    QString path; ///< The file, "/"-separated, relative to the per-user application-data root.
    /// The Steam app id of the game in whose Proton prefix the path is; 0 if it is in none, -1 if
    /// the catalogue gives an invalid id.
    qint64 steam = 0;
    /// That prefix, relative to the data root; empty until it is found, when the path is updated
    /// too.
    QString prefix;
    QString element; ///< Name of our element, a child of the document's root element.
    QString key; ///< Name of the child element that recognises an element as ours.
    QString value; ///< That child's text, compared trimmed.
    bool deleteParent = true; ///< Whether removal deletes the whole element, or only that child.
};

} // namespace Quillmont::Library::Models

#endif
