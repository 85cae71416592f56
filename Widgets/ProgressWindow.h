#ifndef WIDGETS_PROGRESSWINDOW_H
#define WIDGETS_PROGRESSWINDOW_H

#include <QProgressDialog>

class QLabel;
class QProgressBar;

namespace Quillmont::Utility::Widgets {

/// Shows how far the work has come. It cannot be closed, and has no button that could stop the work
/// half done. While it exists, other windows of the process take no input.
class ProgressWindow : public QProgressDialog
{
    Q_OBJECT

public:
    ProgressWindow(QWidget *parent, const QString &title);

    /// Shows @p file as number @p number of @p count, and @p percent of the whole work.
    void
    showState(const QString &simulator, const QString &file, int number, int count, int percent);

    /// Whether the window system shows it already.
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
