#ifndef MODELS_FLIGHTSIMSCAN_H
#define MODELS_FLIGHTSIMSCAN_H

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QString>

namespace Quillmont::Library::Models {
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Utility::Models {

class FlightSimConflict;
class FlightSimRemoval;

/// One entry of the simulator catalogue: how a simulator is found and what is installed in it.
class FlightSimScan : public QObject
{
    Q_OBJECT

public:
    /// Reads @p entry leniently: a missing or wrongly typed value gives the member's default.
    FlightSimScan(QObject *parent, const QJsonObject &entry);

    QString name; ///< The simulator's name as its user knows it.
    QString simcode; ///< What the detection library calls it.
    QString path; ///< First search datum of the detection strategy, as written.
    QString key; ///< Second search datum of the detection strategy, as written.
    int location; ///< Detection strategy: 0 file, 1 folder, 2 registry, 4 multiple locations.
    int type; ///< Simulator family; only family 0 has a configuration file to edit.
    QString extra; ///< Always empty.
    QJsonObject entry; ///< The whole entry as read.
    QMap<QString, QString> files; ///< Destination in the simulator to source, "/"-separated.
    Library::Models::XmlInsertionModel *config
        = nullptr; ///< Configuration entry, owned; may be null.
    int root = -1; ///< 1 or more keeps the configuration entry from being added; -1 when not given.
    QString target; ///< Datum of the multiple-locations strategy, as written.
    FlightSimConflict *conflict = nullptr; ///< Owned; may be null.
    FlightSimRemoval *remove = nullptr; ///< Owned; may be null.

private:
    void readRoot();
    void readFiles();
    void readConfig(const QJsonObject &json);
    void readConflict();
};

} // namespace Quillmont::Utility::Models

#endif
