#include "tests/Library/Helpers/XmlPromises.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

// Any bytes are either unchanged, or get our entry and lose it again without a trace.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto length = static_cast<int>(size);
    const QByteArray bytes(reinterpret_cast<const char *>(data), length);
    bool isAccepted = false;
    const QString broken = Tests::XmlPromises::broken(bytes, &isAccepted);
    if (!broken.isEmpty())
        qFatal("%s", qPrintable(broken));
    return 0;
}
