#ifndef WIDGETS_PROGRESSWINDOW_H
#define WIDGETS_PROGRESSWINDOW_H

#include <QProgressDialog>

class QLabel;
class QProgressBar;

namespace Quillmont::Utility::Widgets {

/// Shows how far the work has come. It cannot be closed, and has no button that could stop the work
/// half done. While it lives, no mouse, key or frame does anything to another window of the
/// process.
class ProgressWindow : public QProgressDialog
{
    Q_OBJECT

public:
    ProgressWindow(QWidget *parent, const QString &title);

    /// The file with the number @p number of @p count, and how much of the whole is done.
    void
    showState(const QString &simulator, const QString &file, int number, int count, int percent);

    /// Whether the user sees it already.
    bool isOnScreen() const;

    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int lineWidth() const;
    QString fitting(const QString &line) const;

    QLabel *m_text;
    QProgressBar *m_bar;
};

} // namespace Quillmont::Utility::Widgets

#endif
