#ifndef FIRSTPAINT_FIRSTPAINTPLUGIN_H
#define FIRSTPAINT_FIRSTPAINTPLUGIN_H

#include <QGenericPlugin>

namespace Benchmarks {

/// Watches an unmodified program: Qt loads this plugin if QT_QPA_GENERIC_PLUGINS names
/// "orbwell-first-paint".
class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first-paint.json")

public:
    QObject *create(const QString &name, const QString &options) override;
};

} // namespace Benchmarks

#endif
