#ifndef TESTS_SUPPORT_METAOBJECT_H
#define TESTS_SUPPORT_METAOBJECT_H

#include <QStringList>

struct QMetaObject;

namespace Tests {

/// The members that a class adds to its base's meta-object, in order: "signal a(int)", "slot b()",
/// "property c", "enum D".
QStringList ownMembers(const QMetaObject &metaObject);

} // namespace Tests

#endif
