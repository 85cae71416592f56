#include "Widgets/WorkProgress.h"

#include "Library/Files/Heartbeat.h"
#include "Widgets/ProgressWindow.h"

#include <QGuiApplication>
#include <QWidget>

#include <algorithm>

using Quillmont::Library::Files::Heartbeat;

namespace Quillmont::Utility::Widgets {

namespace {

WorkProgress *outermost = nullptr;

// The size of the first @p count of them.
qint64 bytesOf(const QVector<WorkProgress::Step> &steps, int count)
{
    qint64 bytes = 0;
    for (int i = 0; i < count; ++i)
        bytes += steps.at(i).bytes;
    return bytes;
}

} // namespace

WorkProgress::Pace WorkProgress::pace;

WorkProgress::WorkProgress(Kind kind, QWidget *window, Plan plan)
    : m_kind(kind)
    , m_window(window)
    , m_plan(std::move(plan))
{
    if (outermost || !window->isVisible())
        return;
    outermost = this;
    m_clock.start();
    Heartbeat::setListener([this](qint64 bytes) { beat(bytes); });
}

WorkProgress::~WorkProgress()
{
    if (!isOutermost())
        return;
    Heartbeat::setListener({});
    close();
    outermost = nullptr;
}

bool WorkProgress::isOutermost() const
{
    return outermost == this;
}

void WorkProgress::nextStep(Kind kind)
{
    if (outermost && outermost->m_kind == kind) {
        ++outermost->m_step;
        outermost->m_bytes = 0;
    }
    Heartbeat::beat();
}

void WorkProgress::beat(qint64 bytes)
{
    m_bytes += bytes;
    if (!isDue())
        return;
    if (!m_progress)
        open();
    showState();
    QCoreApplication::processEvents();
    m_clock.start();
}

bool WorkProgress::isDue() const
{
    // Until a new window is there to be painted.
    constexpr qint64 moment = 20;
    if (!m_progress)
        return m_clock.elapsed() >= pace.patience;
    return m_clock.elapsed()
        >= (m_progress->isOnScreen() ? pace.interval : std::min(pace.interval, moment));
}

void WorkProgress::open()
{
    m_steps = m_plan();
    const QString title = m_kind == Installing ? ProgressWindow::tr("Installing Orbwell")
                                               : ProgressWindow::tr("Uninstalling Orbwell");
    m_progress = std::make_unique<ProgressWindow>(m_window, title);
    showState();
    m_progress->show();
}

void WorkProgress::showState()
{
    if (m_steps.isEmpty())
        return;
    const int count = m_steps.size();
    const int number = qBound(1, m_step, count);
    const Step &step = m_steps.at(number - 1);
    const qint64 done = bytesOf(m_steps, number - 1) + std::min(m_bytes, step.bytes);
    const qint64 all = std::max<qint64>(bytesOf(m_steps, count), 1);
    m_progress->showState(step.simulator, step.file, number, count, int(100 * done / all));
}

void WorkProgress::close()
{
    if (!m_progress)
        return;
    showState();
    // What was pressed until now was pressed in vain; it must not be found later.
    QGuiApplication::sync();
    m_progress.reset();
}

WorkProgressPause::WorkProgressPause()
{
    if (outermost)
        outermost->close();
}

WorkProgressPause::~WorkProgressPause()
{
    if (outermost)
        outermost->m_clock.start();
}

} // namespace Quillmont::Utility::Widgets
