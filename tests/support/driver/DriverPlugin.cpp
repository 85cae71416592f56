#include "tests/support/driver/DriverPlugin.h"

#include "tests/support/driver/Driver.h"

namespace Tests {

QObject *DriverPlugin::create(const QString &, const QString &)
{
    return new Driver(this);
}

} // namespace Tests
