#ifndef VIEWCONTROLLERS_PAYLOAD_LAUNCHDOCUMENT_H
#define VIEWCONTROLLERS_PAYLOAD_LAUNCHDOCUMENT_H

#include <QString>

namespace Quillmont::Utility::ViewControllers {

/// The configuration file for a simulator that has none: it already loads the plugin. To be written
/// as Windows-1252.
QString launchDocument();

} // namespace Quillmont::Utility::ViewControllers

#endif
