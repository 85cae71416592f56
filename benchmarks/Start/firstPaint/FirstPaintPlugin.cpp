#include "benchmarks/Start/firstPaint/FirstPaintPlugin.h"

#include "benchmarks/Start/firstPaint/FirstPaint.h"

namespace Benchmarks {

QObject *FirstPaintPlugin::create(const QString &, const QString &)
{
    return new FirstPaint(this);
}

} // namespace Benchmarks
