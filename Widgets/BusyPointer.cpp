#include "Widgets/BusyPointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace Quillmont::Utility::Widgets {

BusyPointer::BusyPointer()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyPointer::~BusyPointer()
{
    QGuiApplication::restoreOverrideCursor();
}

BusyPointerPause::BusyPointerPause()
{
    for (; QGuiApplication::overrideCursor(); ++m_depth)
        QGuiApplication::restoreOverrideCursor();
}

BusyPointerPause::~BusyPointerPause()
{
    for (; m_depth > 0; --m_depth)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

} // namespace Quillmont::Utility::Widgets
