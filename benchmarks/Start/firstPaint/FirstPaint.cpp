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

// The rest of the window is painted and handed to the screen before the event loop goes on. What
// the program does at its end is no part of its start.
bool FirstPaint::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        QCoreApplication::instance()->removeEventFilter(this);
        QTimer::singleShot(0, this, [] { _exit(0); });
    }
    return QObject::eventFilter(object, event);
}

} // namespace Benchmarks
