#include "tests/support/FolderPicker.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QTimer>

namespace Tests {

FolderPicker::FolderPicker(QString folder)
    : m_folder(std::move(folder))
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true);
    qApp->installEventFilter(this);
}

FolderPicker::~FolderPicker()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
}

bool FolderPicker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (auto *dialog = qobject_cast<QFileDialog *>(watched))
            QTimer::singleShot(0, dialog, [this, dialog] { answer(dialog); });
    }
    return QObject::eventFilter(watched, event);
}

void FolderPicker::answer(QFileDialog *dialog)
{
    m_pickers.append({dialog->windowTitle(),
                      dialog->directory().absolutePath(),
                      dialog->options(),
                      dialog->parentWidget()});
    if (m_folder.isEmpty()) {
        dialog->reject();
        return;
    }
    dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(m_folder);
    // accept() is public in QDialog but protected in QFileDialog.
    static_cast<QDialog *>(dialog)->accept();
    m_accepted = dialog->result() == QDialog::Accepted;
    if (!m_accepted)
        dialog->reject();
    else if (m_act)
        m_act();
}

} // namespace Tests
