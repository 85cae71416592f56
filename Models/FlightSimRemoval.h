#ifndef MODELS_FLIGHTSIMREMOVAL_H
#define MODELS_FLIGHTSIMREMOVAL_H

#include <QList>
#include <QObject>
#include <QString>

class QJsonObject;

namespace Quillmont::Utility::Models {

class FileOperation;

/// What uninstalling removes from a simulator.
class FlightSimRemoval : public QObject
{
    Q_OBJECT

public:
    /// Reads the "remove" object of a catalogue entry's "config"; a missing or wrongly typed
    /// value gives the member's default.
    FlightSimRemoval(QObject *parent, const QJsonObject &json);

    QString parent; ///< Name of the configuration element to remove.
    QString key; ///< Name of the child element that recognises it.
    QString value; ///< That child's text.
    bool deleteParent; ///< Whether the whole element goes; false by default.
    QList<FileOperation *> files; ///< Files to delete, in catalogue order; owned by this object.
};

} // namespace Quillmont::Utility::Models

#endif
