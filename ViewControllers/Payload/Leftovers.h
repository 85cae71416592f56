#ifndef VIEWCONTROLLERS_PAYLOAD_LEFTOVERS_H
#define VIEWCONTROLLERS_PAYLOAD_LEFTOVERS_H

#include <QSet>
#include <QString>

class QDir;

namespace Quillmont::Utility::Models {
class FileOperation;
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// Whether the user sees nothing in @p folder: hidden files do not count, nor do those paths that
/// are in @p gone. A folder that cannot be listed may well hold something.
bool isSurelyEmpty(const QDir &folder, const QSet<QString> &gone = {});

/// The native path of a file that uninstalling deletes beside the plugin's own.
QString extraFile(const Models::FlightSimulatorMapping *mapping,
                  const Models::FileOperation *operation);

} // namespace Quillmont::Utility::ViewControllers

#endif
