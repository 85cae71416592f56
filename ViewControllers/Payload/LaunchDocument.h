#ifndef VIEWCONTROLLERS_PAYLOAD_LAUNCHDOCUMENT_H
#define VIEWCONTROLLERS_PAYLOAD_LAUNCHDOCUMENT_H

#include <QString>

namespace Quillmont::Utility::ViewControllers {

/// What a simulator without a configuration file gets: one that already loads the plugin. To be
/// written as Windows-1252.
QString launchDocument();

} // namespace Quillmont::Utility::ViewControllers

#endif
