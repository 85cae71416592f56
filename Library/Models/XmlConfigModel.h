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

    /// Whether an element is described at all. Without a "parent" or "values" none is, and the
    /// members that recognise it are empty.
    bool describesEntry() const { return !element.isEmpty(); }

    QString path; ///< The file, "/"-separated, relative to the per-user application-data root.
    /// Steam's number of the game in whose Proton prefix the path as written is; 0 where it is in
    /// no prefix, -1 where it is in one whose game is not told by a number of Steam's.
    qint64 steam = 0;
    /// The way from the data root to that prefix; empty until it is found and the path set anew.
    QString prefix;
    QString element; ///< Name of our element, a child of the document's root element.
    QString key; ///< Name of the child element that recognises an element as ours.
    QString value; ///< That child's text, compared trimmed.
    bool deleteParent = true; ///< Whether removal takes the whole element out, or only that child.
};

} // namespace Quillmont::Library::Models

#endif
