#include "benchmarks/Start/firstPaint/FirstPaint.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <unistd.h>

namespace Benchmarks {

FirstPaint::FirstPaint(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

// The rest of the window is painted and shown before the event loop continues. The program's normal
// exit is not part of its start.
bool FirstPaint::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        QCoreApplication::instance()->removeEventFilter(this);
        QTimer::singleShot(0, this, [] { _exit(0); });
    }
    return QObject::eventFilter(object, event);
}

} // namespace Benchmarks
