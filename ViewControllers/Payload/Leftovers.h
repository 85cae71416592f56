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

/// True only if @p folder certainly has nothing visible in it; hidden files and the paths in
/// @p gone do not count. A folder that cannot be listed may hold something.
bool isSurelyEmpty(const QDir &folder, const QSet<QString> &gone = {});

/// The native path of a file that uninstalling deletes in addition to the plugin's own.
QString extraFile(const Models::FlightSimulatorMapping *mapping,
                  const Models::FileOperation *operation);

} // namespace Quillmont::Utility::ViewControllers

#endif
