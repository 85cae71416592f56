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

/// The path by which QDir removes @p folder, an existing one. ".." it takes as text, which behind a
/// linked folder leads elsewhere than where it looks; empty where the folder is missing, too, then.
QString asTheSystemHasIt(const QString &folder);

/// Calls @p see with the path of each thing that the user sees in @p folder, until that says
/// false; hidden files are not seen. False if the folder cannot be listed to the end.
bool lookInto(const QDir &folder, const std::function<bool(const QString &)> &see);

/// True only if @p folder certainly has nothing visible in it. A folder that cannot be listed may
/// hold something.
bool isSurelyEmpty(const QDir &folder);

/// The native path of a file that uninstalling deletes in addition to the plugin's own.
QString extraFile(const Models::FlightSimulatorMapping *mapping,
                  const Models::FileOperation *operation);

} // namespace Quillmont::Utility::ViewControllers

#endif
