// Clicks go through the window system's queue, where a modal box keeps them from other windows.
#define QTEST_QPA_MOUSE_HANDLING

#include "tests/support/driver/Hand.h"

#include "tests/support/driver/Eye.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QKeySequence>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

namespace Tests {

// As a user does before pressing something outside the visible part of the list.
static void scrollTo(const QWidget *row)
{
    auto *list = qobject_cast<QListWidget *>(row->parentWidget()->parentWidget());
    for (int i = 0; list && i < list->count(); ++i) {
        if (list->itemWidget(list->item(i)) == row)
            list->scrollToItem(list->item(i));
    }
}

Hand::Hand(const QJsonObject &command)
    : m_command(command)
    , m_deed(text("do"))
{ }

QString Hand::text(const char *key) const
{
    return m_command.value(QLatin1String(key)).toString();
}

QString Hand::reach()
{
    if (m_deed == QLatin1String("press row"))
        return reachRow();
    if (m_deed == QLatin1String("press"))
        return reachButton();
    if (m_deed == QLatin1String("choose folder"))
        return reachFolderDialog();
    m_target = Eye::inputWindow();
    if (!m_target)
        return QStringLiteral("no window");
    if (m_deed == QLatin1String("grab") && !m_target->grab().save(text("file")))
        return QStringLiteral("cannot write ") + text("file");
    return {};
}

QString Hand::reachRow()
{
    const QWidget *row = Eye::rowOf(text("row"));
    if (!row)
        return QStringLiteral("no row for ") + text("row");
    scrollTo(row);
    m_target = Eye::buttonOf(row, text("control") == QLatin1String("browse"));
    return m_target ? QString() : QStringLiteral("no such control in the row");
}

QString Hand::reachButton()
{
    const QWidget *window = Eye::inputWindow();
    if (!window)
        return QStringLiteral("no window");
    const auto all = window->findChildren<QAbstractButton *>();
    for (auto *button : all) {
        if (button->isVisible() && Eye::shownText(button) == text("button"))
            m_target = button;
    }
    return m_target ? QString() : QStringLiteral("no button ") + text("button");
}

QString Hand::reachFolderDialog()
{
    const auto *dialog = qobject_cast<QFileDialog *>(Eye::inputWindow());
    if (!dialog)
        return QStringLiteral("no folder dialog");
    auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    const auto *buttons = dialog->findChild<QDialogButtonBox *>();
    if (!name || !buttons)
        return QStringLiteral("not the toolkit's own dialog");
    name->setText(text("folder"));
    m_target = buttons->button(QDialogButtonBox::Open);
    return m_target ? QString() : QStringLiteral("no button to choose with");
}

void Hand::act()
{
    if (!m_target)
        return;
    if (m_deed == QLatin1String("key")) {
        QTest::keyClick(m_target->windowHandle(), Qt::Key(QKeySequence(text("key"))[0]));
    } else if (m_deed == QLatin1String("close")) {
        m_target->close();
    } else if (qobject_cast<QAbstractButton *>(m_target.data())) {
        QTest::mouseClick(m_target, Qt::LeftButton);
    }
}

} // namespace Tests
