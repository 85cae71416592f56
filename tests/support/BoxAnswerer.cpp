#include "tests/support/BoxAnswerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace Tests {

BoxAnswerer::BoxAnswerer()
{
    qApp->installEventFilter(this);
}

bool BoxAnswerer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (auto *box = qobject_cast<QMessageBox *>(watched))
            QTimer::singleShot(0, box, [this, box] { answer(box); });
    }
    return QObject::eventFilter(watched, event);
}

void BoxAnswerer::answer(QMessageBox *box)
{
    m_boxes.append({box->windowTitle(),
                    box->text(),
                    box->icon(),
                    box->standardButtons(),
                    box->parentWidget(),
                    QApplication::overrideCursor() != nullptr});
    if (m_look)
        m_look();
    box->button(QMessageBox::Ok)->click();
}

} // namespace Tests
