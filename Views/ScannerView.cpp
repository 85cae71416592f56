#include "Views/ScannerView.h"

#include "Widgets/AddonListItem.h"
#include "Widgets/AddonListItemDelegate.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>

using Quillmont::Utility::Models::FlightSimulatorMapping;
using Quillmont::Utility::Widgets::AddonListItem;
using Quillmont::Utility::Widgets::AddonListItemDelegate;

namespace Quillmont::Utility::Views {

ScannerView::ScannerView(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);

    m_introduction = new QLabel(
        tr("Orbwell will automatically detect your simulators and install the plugin in each. "
           "Please verify below. To manually scan and install again, press \"Scan & Install\" "
           "below."),
        this);
    m_introduction->setWordWrap(true);
    layout->addWidget(m_introduction);

    m_list = new QListWidget(this);
    layout->addWidget(m_list);

    auto *buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    m_scanAndInstall = new QPushButton(tr("Scan && Install"), this);
    buttons->addWidget(m_scanAndInstall);
    m_close = new QPushButton(tr("Close"), this);
    buttons->addWidget(m_close);

    connect(m_close, &QPushButton::clicked, this, [] { QCoreApplication::exit(0); });
    connect(m_scanAndInstall, &QPushButton::clicked, this, &ScannerView::scanRequested);

    m_list->setItemDelegate(new AddonListItemDelegate(m_list));
    setMinimumSize(640, 480);
    setWindowTitle(tr("Quillmont Orbwell Settings"));
}

void ScannerView::setScanResult(QList<FlightSimulatorMapping *> mappings,
                                bool updateDefault,
                                bool quiet)
{
    m_list->clear();
    int found = 0;
    for (auto *mapping : qAsConst(mappings)) {
        addRow(mapping, updateDefault);
        if (!mapping->path.isEmpty())
            ++found;
    }
    moveButtonsBehindRows();
    if (!updateDefault && !quiet)
        showCount(found);
}

void ScannerView::addRow(FlightSimulatorMapping *mapping, bool updateDefault)
{
    auto *row = new AddonListItem(m_list, mapping, updateDefault);
    auto *item = new QListWidgetItem;
    m_list->addItem(item);
    m_list->setItemWidget(item, row);
    connect(row, &AddonListItem::install, this, &ScannerView::install);
    connect(row, &AddonListItem::uninstall, this, &ScannerView::uninstall);
}

void ScannerView::moveButtonsBehindRows()
{
    // The toolkit hangs new rows on the end of the tab order, behind the buttons below them.
    setTabOrder(previousInFocusChain(), m_scanAndInstall);
    setTabOrder(m_scanAndInstall, m_close);
}

void ScannerView::showCount(int count)
{
    QString text;
    if (count > 1)
        text = tr("Scan found %0 flight simulators installed.").arg(count);
    else if (count == 1)
        text = tr("Scan found 1 flight simulator installed.");
    else
        text = tr("Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.");
    QMessageBox::information(this, tr("Scan completed"), text, QMessageBox::Ok);
}

} // namespace Quillmont::Utility::Views
