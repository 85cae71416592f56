#ifndef VIEWCONTROLLERS_PAYLOAD_CATALOGUE_H
#define VIEWCONTROLLERS_PAYLOAD_CATALOGUE_H

#include <QList>
#include <QMap>
#include <QString>

class QObject;

namespace Quillmont::Utility::Models {
class FlightSimScan;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// The native path of the catalogue beside the executable.
QString catalogueFile();

/// The native path of the folder with the plugin's files beside the executable, with a separator
/// at its end.
QString payloadFolder();

/// The text of the catalogue at @p path; empty when it cannot be read, and the log says why.
QString catalogueText(const QString &path);

/// The entries that the catalogue's text describes, children of @p owner, in the order in which
/// they are shown and worked on: those whose simulators are in @p simPaths first.
QList<Models::FlightSimScan *>
catalogueEntries(QObject *owner, const QString &content, const QMap<QString, QString> &simPaths);

} // namespace Quillmont::Utility::ViewControllers

#endif
