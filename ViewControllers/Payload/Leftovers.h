#ifndef VIEWCONTROLLERS_PAYLOAD_LEFTOVERS_H
#define VIEWCONTROLLERS_PAYLOAD_LEFTOVERS_H

#include <QString>

#include <functional>

class QDir;

namespace Quillmont::Utility::Models {
class FileOperation;
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::ViewControllers {

/// The path by which QDir can list and remove the existing folder @p folder: it resolves ".." as
/// text when it removes one, which after a linked folder leads elsewhere. Empty if that folder is
/// missing.
QString realFolder(const QString &folder);

/// Calls @p see with the path of each visible thing in @p folder until it returns false; hidden
/// files are not visible. False if the folder cannot be listed to the end.
bool lookInto(const QDir &folder, const std::function<bool(const QString &)> &see);

/// True only if @p folder certainly has nothing visible in it. A folder that cannot be listed may
/// hold something.
bool isSurelyEmpty(const QDir &folder);

/// The native path of a file that uninstalling deletes in addition to the plugin's own.
QString extraFile(const Models::FlightSimulatorMapping *mapping,
                  const Models::FileOperation *operation);

} // namespace Quillmont::Utility::ViewControllers

#endif
