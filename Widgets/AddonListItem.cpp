#include "Widgets/AddonListItem.h"

#include "Controllers/ActionLog.h"
#include "Controllers/ChosenFolder.h"
#include "Controllers/ConfigurationController.h"
#include "Models/FlightSimScan.h"
#include "Widgets/NameItem.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextDocument>
#include <QToolButton>

using Quillmont::Utility::Controllers::chosenFolder;
using Quillmont::Utility::Controllers::chosenFolderKey;
using Quillmont::Utility::Controllers::ConfigurationController;
using Quillmont::Utility::Controllers::logAction;

namespace Quillmont::Utility::Widgets {

namespace {

// A tool tip interprets tags, and a long plain one does not fit the screen.
QString literalToolTip(const QString &text)
{
    const bool fits = text.size() < 120 && !Qt::mightBeRichText(text);
    return fits
        ? text
        : QStringLiteral("<p style='white-space: pre-wrap'>%0</p>").arg(text.toHtmlEscaped());
}

} // namespace

AddonListItem::AddonListItem(QWidget *parent,
                             Models::FlightSimulatorMapping *mapping,
                             bool updateDefault)
    : QWidget(parent)
    , m_mapping(mapping)
    , m_icon(new QLabel(this))
    , m_name(new QLabel(QStringLiteral("<b>%0</b>").arg(mapping->scan->name), this))
    , m_path(new QLineEdit(this))
    , m_browse(new QToolButton(this))
    , m_action(new QToolButton(this))
{
    m_icon->setFixedSize(48, 48);
    m_name->setToolTip(m_name->text());

    m_path->setPlaceholderText(tr("Path not set"));
    m_path->setMinimumHeight(24);
    m_path->setReadOnly(true);
    // Takes the width that the buttons leave, at any font size.
    m_path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    applyMappedPath(updateDefault);

    m_browse->setMinimumSize(24, 24);
    m_browse->setText(tr("..."));
    m_action->setMinimumSize(128, 24);

    arrange();
    nameControls();
    watchParts();

    connect(m_browse, &QToolButton::clicked, this, &AddonListItem::browsePath);
    connect(
        m_action,
        &QToolButton::clicked,
        m_action,
        [this] { requestAction(); },
        Qt::DirectConnection);
    updateStatus();
}

void AddonListItem::arrange()
{
    auto *outer = new QHBoxLayout;
    outer->addWidget(m_icon, 0);

    auto *column = new QVBoxLayout;
    outer->addLayout(column, 0);
    column->addItem(new NameItem(m_name));

    auto *pathLine = new QHBoxLayout;
    column->addLayout(pathLine, 0);
    pathLine->addWidget(m_path, 0);
    pathLine->addWidget(m_browse, 2);
    pathLine->addWidget(m_action, 2);
    // Set last: each change of an installed layout posts a request, and Qt searches all pending
    // ones, which with thousands of rows takes longer than the rows themselves.
    setLayout(outer);
}

// A screen reader reads these without the row around them.
void AddonListItem::nameControls()
{
    const QString &simulator = m_mapping->scan->name;
    setAccessibleName(simulator);
    m_path->setAccessibleName(tr("Folder of %0").arg(simulator));
    m_browse->setAccessibleName(tr("Choose the folder of %0").arg(simulator));

    m_path->setObjectName(QStringLiteral("path"));
    m_browse->setObjectName(QStringLiteral("browse"));
    m_action->setObjectName(QStringLiteral("action"));
}

void AddonListItem::watchParts()
{
    installEventFilter(this);
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_icon, m_name, m_path, m_browse, m_action})
        part->installEventFilter(this);
}

// Each part that is shown requests an update, for which Qt searches all later rows for one that
// covers it. With thousands of rows, only visible ones may request it.
bool AddonListItem::eventFilter(QObject *part, QEvent *event)
{
    const auto *list = parentWidget();
    const bool isOutOfSight = list && !list->rect().intersects(geometry());
    return (event->type() == QEvent::UpdateLater && isOutOfSight)
        || QWidget::eventFilter(part, event);
}

void AddonListItem::applyMappedPath(bool updateDefault)
{
    const QString mapped = getMappedPath();
    if (!mapped.isEmpty()) {
        if (updateDefault)
            m_mapping->updateFlightSimPath(mapped);
        else
            removeSettings();
    }
    showPath(m_mapping->path);
}

void AddonListItem::requestAction()
{
    if (m_mapping->isAddonInstalled())
        emit uninstall(m_mapping);
    else
        emit install(m_mapping);
}

void AddonListItem::browsePath()
{
    const QString chosen = QFileDialog::getExistingDirectory(
        this,
        tr("Open Directory"),
        m_mapping->path,
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (chosen.isEmpty())
        return;
    logAction() << "folder chosen for" << m_mapping->scan->name << chosen;

    if (QDir(chosen).exists()) {
        m_mapping->updateFlightSimPath(QDir::toNativeSeparators(chosen));
        showPath(m_mapping->path);
    } else {
        QMessageBox::critical(
            nullptr, tr("Invalid path"), tr("This path is invalid"), QMessageBox::Ok);
    }
    // Also after an invalid folder: the row then keeps its old one.
    updateStatus();
    savePath();
}

void AddonListItem::showPath(const QString &path)
{
    m_path->setText(path);
    m_path->setCursorPosition(0);
    // QLineEdit cuts at its maximum length; show what it kept.
    m_path->setToolTip(literalToolTip(m_path->text()));
}

void AddonListItem::updateStatus()
{
    const bool installed = m_mapping->isAddonInstalled();
    const bool exists = QFileInfo::exists(m_mapping->path);

    m_icon->setPixmap(artwork(!exists         ? QStringLiteral("icon-minus-grey-44")
                                  : installed ? QStringLiteral("icon-check-green-44")
                                              : QStringLiteral("icon-check-grey-44")));
    m_action->setText(installed ? tr("Uninstall Orbwell") : tr("Install Orbwell"));
    m_action->setEnabled(exists);
    explainButtons();

    const QString state = stateInWords(exists, installed);
    setAccessibleDescription(state);
    m_path->setAccessibleDescription(state);
    m_icon->setAccessibleName(tr("%0: %1").arg(m_mapping->scan->name, state));
    m_icon->setToolTip(state);
    m_action->setAccessibleName(tr("%0: %1").arg(m_action->text(), m_mapping->scan->name));
}

// The buttons' tool tips say what to do about a simulator that was not found.
void AddonListItem::explainButtons()
{
    const bool isKnown = !m_mapping->path.isEmpty();
    const QString advice
        = tr("This simulator was not found. If you have it, press \"...\" and choose "
             "its folder.");
    m_browse->setToolTip(isKnown ? literalToolTip(m_browse->accessibleName()) : advice);
    m_action->setToolTip(isKnown ? QString() : advice);
}

QString AddonListItem::stateInWords(bool exists, bool installed) const
{
    if (!exists)
        return m_mapping->path.isEmpty() ? tr("Folder not known") : tr("Folder not found");
    return installed ? tr("Orbwell is installed") : tr("Orbwell is not installed");
}

// A tool button handles only the space bar.
void AddonListItem::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    for (auto *button : {m_browse, m_action}) {
        if (enter && button->hasFocus()) {
            button->click();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

QPixmap AddonListItem::artwork(const QString &name) const
{
    // QLabel neither picks a pixmap for the screen's scale nor scales one smoothly.
    const qreal scale = devicePixelRatioF();
    const QLatin1String detail(scale > 1 ? "@2x" : "");
    const QPixmap drawn(QStringLiteral(":/assets/Quillmont Orbwell/%1%2.png").arg(name, detail));
    QPixmap fitting
        = drawn.scaled(QSize(44, 44) * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    fitting.setDevicePixelRatio(scale);
    return fitting;
}

QString AddonListItem::settingsKey() const
{
    return chosenFolderKey(m_mapping->scan->name);
}

QString AddonListItem::getMappedPath()
{
    return chosenFolder(m_mapping->scan->name);
}

void AddonListItem::savePath()
{
    ConfigurationController::instance()->saveSettings(settingsKey(), m_mapping->path);
}

void AddonListItem::removeSettings()
{
    ConfigurationController::instance()->removeSettings(settingsKey());
}

} // namespace Quillmont::Utility::Widgets
