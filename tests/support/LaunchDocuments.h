#ifndef TESTS_SUPPORT_LAUNCHDOCUMENTS_H
#define TESTS_SUPPORT_LAUNCHDOCUMENTS_H

#include <QByteArray>

namespace Tests {

/// A launcher's configuration file as other add-ons left it.
QByteArray othersConfiguration();

/// The plugin's entry in a launcher's configuration file.
QByteArray pluginEntry();

/// othersConfiguration() with the plugin's entry after the others.
QByteArray ourConfiguration();

/// The configuration file that a simulator without one gets.
QByteArray launchDocument();

} // namespace Tests

#endif
