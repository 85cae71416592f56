#include "Controllers/ActionLog.h"

#include <QLoggingCategory>

namespace Quillmont::Utility::Controllers {

QDebug logAction()
{
    static const QLoggingCategory category("orbwell");
    return QMessageLogger().info(category);
}

} // namespace Quillmont::Utility::Controllers
