#include "benchmarks/support/PlainRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

namespace Benchmarks {

PlainRow::PlainRow(QWidget *parent, const QString &name, const QString &path)
    : QWidget(parent)
{
    auto *icon = new QLabel;
    icon->setFixedSize(48, 48);
    icon->setPixmap(
        QPixmap(QStringLiteral(ORBWELL_SOURCE "/assets/Quillmont Orbwell/icon-check-grey-44.png")));
    auto *field = new QLineEdit(path);
    field->setMinimumHeight(24);
    field->setReadOnly(true);
    auto *browse = new QToolButton;
    browse->setMinimumSize(24, 24);
    browse->setText(QStringLiteral("..."));
    auto *action = new QToolButton;
    action->setMinimumSize(128, 24);
    action->setText(QStringLiteral("Install Orbwell"));

    auto *line = new QHBoxLayout;
    line->addWidget(field);
    line->addWidget(browse, 2);
    line->addWidget(action, 2);
    auto *column = new QVBoxLayout;
    column->addWidget(new QLabel(QStringLiteral("<b>%1</b>").arg(name)));
    column->addLayout(line);
    auto *outer = new QHBoxLayout(this);
    outer->addWidget(icon);
    outer->addLayout(column);
}

void PlainRow::addTo(QListWidget *list, const QString &name, const QString &path)
{
    auto *item = new QListWidgetItem(list);
    item->setSizeHint({0, 64});
    list->setItemWidget(item, new PlainRow(list, name, path));
}

QWidget *plainWindow(int rows, const QString &path)
{
    auto *window = new QWidget;
    auto *layout = new QVBoxLayout(window);
    auto *introduction = new QLabel(QStringLiteral(
        "Orbwell will automatically detect your simulators and install the plugin in each."));
    introduction->setWordWrap(true);
    layout->addWidget(introduction);
    auto *list = new QListWidget;
    layout->addWidget(list);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(new QPushButton(QStringLiteral("Scan && Install")));
    buttons->addWidget(new QPushButton(QStringLiteral("Close")));
    layout->addLayout(buttons);
    window->setMinimumSize(640, 480);
    for (int i = 0; i < rows; ++i)
        PlainRow::addTo(list, QStringLiteral("Simulator %1").arg(i), path);
    return window;
}

} // namespace Benchmarks
