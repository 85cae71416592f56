#include "Doctor/Problems.h"

#include <QJsonObject>

namespace Quillmont::Utility::Doctor {

void Problems::add(const char *level, const QString &text, const QString &advice)
{
    m_all.append(QJsonObject{{QStringLiteral("level"), QLatin1String(level)},
                             {QStringLiteral("text"), text},
                             {QStringLiteral("advice"), advice}});
}

} // namespace Quillmont::Utility::Doctor
