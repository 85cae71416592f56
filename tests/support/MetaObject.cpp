#include "tests/support/MetaObject.h"

#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>

namespace Tests {

QStringList ownMembers(const QMetaObject &metaObject)
{
    QStringList members;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        members.append((isSignal ? QLatin1String("signal ") : QLatin1String("slot "))
                       + QString::fromLatin1(method.methodSignature()));
    }
    for (int i = metaObject.propertyOffset(); i < metaObject.propertyCount(); ++i)
        members.append(QLatin1String("property ") + QLatin1String(metaObject.property(i).name()));
    for (int i = metaObject.enumeratorOffset(); i < metaObject.enumeratorCount(); ++i)
        members.append(QLatin1String("enum ") + QLatin1String(metaObject.enumerator(i).name()));
    return members;
}

} // namespace Tests
