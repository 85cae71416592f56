#include "Views/ScannerView.h"

#include "Widgets/Accessible/AccessibleButton.h"
#include "Widgets/Accessible/AccessibleList.h"
#include "Widgets/Accessible/AccessibleRow.h"
#include "Widgets/AddonListItem.h"
#include "Widgets/AddonListItemDelegate.h"
#include "Widgets/OnePress.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include <functional>
#include <memory>

using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::AccessibleButton;
using Quillmont::Utility::Widgets::AccessibleList;
using Quillmont::Utility::Widgets::AccessibleRow;
using Quillmont::Utility::Widgets::AddonListItem;
using Quillmont::Utility::Widgets::AddonListItemDelegate;
using Quillmont::Utility::Widgets::isBehindDialog;
using Quillmont::Utility::Widgets::OnePress;

namespace Quillmont::Utility::Views {

namespace {

QAccessibleInterface *accessiblePart(const QString &, QObject *object)
{
    if (auto *row = qobject_cast<AddonListItem *>(object))
        return new AccessibleRow(row);
    auto *button = qobject_cast<QToolButton *>(object);
    if (button && qobject_cast<AddonListItem *>(button->parentWidget()))
        return new AccessibleButton(button);
    auto *list = qobject_cast<QListWidget *>(object);
    if (list && qobject_cast<ScannerView *>(list->parentWidget()))
        return new AccessibleList(list);
    return nullptr;
}

// A screen reader presses a button even behind a dialog. Qt clicks it a moment later, when the
// dialog may have gone.
void whenPressed(QPushButton *button, const std::function<void()> &act)
{
    const auto wasInVain = std::make_shared<bool>(false);
    QObject::connect(button, &QPushButton::pressed, button, [button, wasInVain] {
        *wasInVain = isBehindDialog(button);
    });
    QObject::connect(button, &QPushButton::clicked, button, [button, wasInVain, act] {
        if (!*wasInVain && !isBehindDialog(button))
            act();
    });
}

} // namespace

ScannerView::ScannerView(QWidget *parent)
    : QWidget(parent)
{
    // Before any child exists: Qt caches the first accessible interface of an object.
    QAccessible::installFactory(accessiblePart);
    OnePress::watch();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeIntroduction());
    layout->addWidget(makeList());
    layout->addLayout(makeButtons());

    // Enter presses the button that has the focus, as it does in a dialog.
    m_scanAndInstall->setAutoDefault(true);
    m_close->setAutoDefault(true);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, const QWidget *now) {
        showRowAround(now);
    });

    whenPressed(m_close, [] { QCoreApplication::exit(0); });
    whenPressed(m_scanAndInstall, [this] { emit scanRequested(); });

    m_list->setItemDelegate(new AddonListItemDelegate(m_list));
    setMinimumSize(640, 480);
    setWindowTitle(tr("Quillmont Orbwell Settings"));
}

QLabel *ScannerView::makeIntroduction()
{
    m_introduction = new QLabel(
        tr("Orbwell will automatically detect your simulators and install the plugin in each. "
           "Please verify below. To manually scan and install again, press \"Scan & Install\" "
           "below."),
        this);
    m_introduction->setWordWrap(true);
    return m_introduction;
}

QListWidget *ScannerView::makeList()
{
    m_list = new QListWidget(this);
    m_list->setAccessibleName(tr("Simulators"));
    // A row has its own buttons; a selection would only make its name and icon hard to see.
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->verticalScrollBar()->setSingleStep(21); // a wheel notch scrolls three steps: one row
    explainEmptyList();
    return m_list;
}

// The list is empty only if the catalogue has no entries.
void ScannerView::explainEmptyList()
{
    const QString text
        = tr("There are no simulators to show. The file flightsims.json beside this program is "
             "missing, empty or damaged. Please install Quillmont Orbwell again.");
    m_emptyListText = new QLabel(text, m_list->viewport());
    m_emptyListText->setWordWrap(true);
    m_emptyListText->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(m_list->viewport());
    layout->addWidget(m_emptyListText);
    showEmptyListText(true);
}

void ScannerView::showEmptyListText(bool isEmpty)
{
    m_emptyListText->setVisible(isEmpty);
    // A screen reader finds only the rows in the list.
    m_list->setAccessibleDescription(isEmpty ? m_emptyListText->text() : QString());
}

QHBoxLayout *ScannerView::makeButtons()
{
    auto *buttons = new QHBoxLayout;
    m_scanAndInstall = new QPushButton(tr("Scan && Install"), this);
    buttons->addWidget(m_scanAndInstall);
    m_close = new QPushButton(tr("Close"), this);
    buttons->addWidget(m_close);
    return buttons;
}

ScannerView::~ScannerView()
{
    // Destroying the children moves the focus; do not react any more.
    disconnect(qApp, &QApplication::focusChanged, this, nullptr);
}

// By value: the signature is fixed for its callers.
void ScannerView::setScanResult(
    QList<FlightSimulatorMapping *> mappings, // NOLINT clazy:exclude=function-args-by-ref
    bool updateDefault,
    bool quiet)
{
    const RowControl focused = focusedControl();
    const int scrolled = m_list->verticalScrollBar()->value();
    // Otherwise the focus would jump through every row that is deleted.
    if (!focused.control.isEmpty())
        m_list->setFocus();
    m_list->clear();
    int found = 0;
    // All items before the first row: Qt lays out the whole list for each item added after a row.
    for (int i = 0; i < mappings.size(); ++i)
        m_list->addItem(new QListWidgetItem);
    for (int i = 0; i < mappings.size(); ++i) {
        setRow(i, mappings.at(i), updateDefault);
        if (!mappings.at(i)->path.isEmpty())
            ++found;
    }
    showEmptyListText(mappings.isEmpty());
    moveButtonsAfterRows();
    scrollTo(scrolled);
    focusControl(focused);
    if (!updateDefault && !quiet)
        showCount(found);
}

void ScannerView::setRow(int index, FlightSimulatorMapping *mapping, bool updateDefault)
{
    auto *row = new AddonListItem(m_list, mapping, updateDefault);
    m_list->setItemWidget(m_list->item(index), row);
    connect(row, &AddonListItem::install, this, &ScannerView::install);
    connect(row, &AddonListItem::uninstall, this, &ScannerView::uninstall);
}

int ScannerView::rowAround(const QWidget *widget) const
{
    if (!m_list->isAncestorOf(widget))
        return -1;
    for (int i = 0; i < m_list->count(); ++i) {
        const auto *row = m_list->itemWidget(m_list->item(i));
        if (row && row->isAncestorOf(widget))
            return i;
    }
    return -1;
}

void ScannerView::showRowAround(const QWidget *widget)
{
    if (auto *item = m_list->item(rowAround(widget)))
        m_list->scrollToItem(item);
}

ScannerView::RowControl ScannerView::focusedControl() const
{
    const auto *control = focusWidget();
    const int index = rowAround(control);
    const auto *row = m_list->itemWidget(m_list->item(index));
    if (!row)
        return {};
    return {index, row->accessibleName(), control->objectName()};
}

// Prefers the row at the same index, which tells two simulators of one name apart.
int ScannerView::rowOf(const RowControl &wanted) const
{
    const auto isWanted = [&](int index) {
        const auto *row = m_list->itemWidget(m_list->item(index));
        return row && row->accessibleName() == wanted.simulator;
    };
    if (isWanted(wanted.row))
        return wanted.row;
    for (int i = 0; i < m_list->count(); ++i) {
        if (isWanted(i))
            return i;
    }
    return -1;
}

void ScannerView::focusControl(const RowControl &wanted)
{
    const auto *row = m_list->itemWidget(m_list->item(rowOf(wanted)));
    if (!row || wanted.control.isEmpty())
        return;
    auto *control = row->findChild<QWidget *>(wanted.control);
    // Without a folder, only "..." is enabled.
    if (!control->isEnabled())
        control = row->findChild<QWidget *>(QStringLiteral("browse"));
    control->setFocus();
}

void ScannerView::scrollTo(int position)
{
    // A window that was never shown does not have its size yet.
    if (m_list->isVisible() || position > 0)
        m_list->doItemsLayout(); // otherwise the scroll bar's range is too small
    m_list->verticalScrollBar()->setValue(position);
}

void ScannerView::moveButtonsAfterRows()
{
    // Qt appends new rows to the tab order, after the buttons below them.
    const auto *lastRow = m_list->itemWidget(m_list->item(m_list->count() - 1));
    auto *last = lastRow ? lastRow->findChild<QWidget *>(QStringLiteral("action")) : m_list;
    setTabOrder(last, m_scanAndInstall);
    setTabOrder(m_scanAndInstall, m_close);
}

void ScannerView::showCount(int count)
{
    QString text;
    if (count > 1)
        text = tr("Scan found %0 flight simulators installed.", nullptr, count).arg(count);
    else if (count == 1)
        text = tr("Scan found 1 flight simulator installed.");
    else
        text = tr("Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.");
    QMessageBox::information(this, tr("Scan completed"), text, QMessageBox::Ok);
}

} // namespace Quillmont::Utility::Views
