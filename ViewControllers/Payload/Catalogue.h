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

/// The native path of the folder with the plugin's files beside the executable, with a trailing
/// separator.
QString payloadFolder();

/// The text of the catalogue at @p path; empty if it cannot be read; the log says why.
QString catalogueText(const QString &path);

/// The catalogue's entries, as children of @p owner, in the order in which they are shown and
/// processed: first those whose simulators are in @p simPaths.
QList<Models::FlightSimScan *>
catalogueEntries(QObject *owner, const QString &content, const QMap<QString, QString> &simPaths);

} // namespace Quillmont::Utility::ViewControllers

#endif
