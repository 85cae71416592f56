#ifndef TESTS_SUPPORT_DRIVER_DRIVERPLUGIN_H
#define TESTS_SUPPORT_DRIVER_DRIVERPLUGIN_H

#include <QGenericPlugin>

namespace Tests {

/// Lets a test drive a program that knows nothing of it: the toolkit loads this plugin when
/// QT_QPA_GENERIC_PLUGINS names "orbwell-driver".
class DriverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "driver.json")

public:
    QObject *create(const QString &name, const QString &options) override;
};

} // namespace Tests

#endif
