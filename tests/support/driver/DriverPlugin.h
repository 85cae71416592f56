#ifndef TESTS_SUPPORT_DRIVER_DRIVERPLUGIN_H
#define TESTS_SUPPORT_DRIVER_DRIVERPLUGIN_H

#include <QGenericPlugin>

namespace Tests {

/// Lets a test drive the unmodified program: Qt loads this plugin if QT_QPA_GENERIC_PLUGINS names
/// "orbwell-driver".
class DriverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "driver.json")

public:
    QObject *create(const QString &name, const QString &options) override;
};

} // namespace Tests

#endif
