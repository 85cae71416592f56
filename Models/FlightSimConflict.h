#ifndef MODELS_FLIGHTSIMCONFLICT_H
#define MODELS_FLIGHTSIMCONFLICT_H

#include <QObject>
#include <QString>

class QJsonObject;

namespace Quillmont::Utility::Models {

/// Groups catalogue entries that can find the same simulator, and says which one gives way.
class FlightSimConflict : public QObject
{
    Q_OBJECT

public:
    /// Reads the "conflict" object of a catalogue entry; a missing or wrongly typed value gives
    /// the member's default.
    FlightSimConflict(QObject *parent, const QJsonObject &json);

    /// Whether this entry gives up its folder if it comes second; true unless the catalogue says
    /// otherwise, since that does no harm.
    bool removeOnConflict;
    bool checkFile; ///< Carried along; false by default.
    QString name; ///< The group.
    QString solution; ///< Configuration file to use where the group found several folders.
    int location; ///< Carried along; 0 by default.
};

} // namespace Quillmont::Utility::Models

#endif
