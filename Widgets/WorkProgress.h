#ifndef WIDGETS_WORKPROGRESS_H
#define WIDGETS_WORKPROGRESS_H

#include <QElapsedTimer>
#include <QString>
#include <QVector>

#include <functional>
#include <memory>

class QWidget;

namespace Quillmont::Utility::Widgets {

class ProgressWindow;

/// Shows the progress of work that lasts, and keeps the windows alive meanwhile. Work that calls
/// other work needs no care: the outermost one counts.
class WorkProgress
{
public:
    enum Kind {
        Installing,
        Uninstalling
    };

    /// A file that is to be copied or removed.
    struct Step
    {
        QString simulator;
        QString file;
        qint64 bytes = 0;
    };

    using Plan = std::function<QVector<Step>()>;

    /// In milliseconds: how long work goes on before it is shown, and how often it is shown then.
    struct Pace
    {
        qint64 patience = 1000;
        qint64 interval = 200;
    };

    /// Used by all work; tests shorten it.
    static Pace pace;

    /// Work begins, behind a progress window if @p window is visible. @p plan is asked for all the
    /// steps of that work, those behind it included, and only if it lasts.
    WorkProgress(Kind kind, QWidget *window, Plan plan);
    ~WorkProgress();
    Q_DISABLE_COPY(WorkProgress)

    /// The work comes to its next step. A part of it that is of another @p kind has none.
    static void nextStep(Kind kind);

private:
    friend class WorkProgressPause;

    bool isOutermost() const;
    void beat(qint64 bytes);
    void open();
    void close();
    void showState();
    bool isDue() const;

    const Kind m_kind;
    QWidget *const m_window;
    const Plan m_plan;
    QVector<Step> m_steps;
    int m_step = 0; ///< Counted from 1.
    qint64 m_bytes = 0; ///< Of the step.
    QElapsedTimer m_clock; ///< Since the work began, or since it was shown last.
    std::unique_ptr<ProgressWindow> m_progress;
};

/// No progress is shown while it lives, however much work is under way. The time does not count.
class WorkProgressPause
{
public:
    WorkProgressPause();
    ~WorkProgressPause();
    Q_DISABLE_COPY(WorkProgressPause)
};

} // namespace Quillmont::Utility::Widgets

#endif
