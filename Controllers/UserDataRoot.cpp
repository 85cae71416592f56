#include "Controllers/UserDataRoot.h"

#include <QGuiApplication>

namespace Quillmont::Utility::Controllers {

QString userDataRoot(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::writableLocation(location).remove(
        QGuiApplication::applicationDisplayName());
}

} // namespace Quillmont::Utility::Controllers
