#include "Widgets/ProgressWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QStyle>
#include <QWindow>

namespace Quillmont::Utility::Widgets {

namespace {

bool isInput(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

ProgressWindow::ProgressWindow(QWidget *parent, const QString &title)
    : QProgressDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    setCancelButton(nullptr);
    setAutoReset(false);
    m_text->setTextFormat(Qt::PlainText);
    setLabel(m_text);
    setBar(m_bar);
    // It stays as wide as it is, whatever the names are.
    setFixedWidth(lineWidth() + 2 * style()->pixelMetric(QStyle::PM_LayoutLeftMargin));
    // Here a screen reader starts to read.
    m_bar->setFocusPolicy(Qt::StrongFocus);
    m_bar->setFocus();
    QCoreApplication::instance()->installEventFilter(this);
}

void ProgressWindow::showState(
    const QString &simulator, const QString &file, int number, int count, int percent)
{
    const QString name = tr("%0: %1").arg(windowTitle(), simulator);
    if (m_bar->accessibleName() != name)
        m_bar->setAccessibleName(name);
    m_bar->setValue(percent);
    setLabelText(
        fitting(simulator) + u'\n'
        + fitting(
            tr("File %0 of %1: %2").arg(QString::number(number), QString::number(count), file)));
}

int ProgressWindow::lineWidth() const
{
    constexpr int characters = 50;
    return characters * fontMetrics().averageCharWidth();
}

QString ProgressWindow::fitting(const QString &line) const
{
    return fontMetrics().elidedText(line, Qt::ElideMiddle, lineWidth());
}

bool ProgressWindow::isOnScreen() const
{
    return windowHandle() && windowHandle()->isExposed();
}

// The key Escape.
void ProgressWindow::reject() { }

void ProgressWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
}

// A modal window keeps other windows from what a window system sends, but not from what is
// delivered in another way, nor an open menu. Its own keys must come through: somebody has to know
// which ones are held down when it goes.
bool ProgressWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWidgetType() || !isInput(event)
        || static_cast<QWidget *>(watched)->window() == this)
        return QProgressDialog::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace Quillmont::Utility::Widgets
