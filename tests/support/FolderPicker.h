#ifndef TESTS_SUPPORT_FOLDERPICKER_H
#define TESTS_SUPPORT_FOLDERPICKER_H

#include <QFileDialog>
#include <QObject>
#include <QString>
#include <QVector>

#include <functional>

namespace Tests {

/// A folder chooser as a user saw it.
struct SeenPicker
{
    QString title;
    QString directory;
    QFileDialog::Options options;
    const QWidget *parent;
};

/// Answers every folder chooser during its lifetime, and records them. Meanwhile Qt's own dialog is
/// used, which needs no desktop.
class FolderPicker : public QObject
{
    Q_OBJECT

public:
    /// Picks @p folder, as if typed; an empty one cancels.
    explicit FolderPicker(QString folder);
    ~FolderPicker() override;

    /// The choosers so far, in the order in which they opened.
    const QVector<SeenPicker> &pickers() const { return m_pickers; }

    /// Whether the chooser took the folder. One that it refuses is cancelled instead.
    bool wasAccepted() const { return m_accepted; }

    /// Runs @p act after the user's choice, before the program uses it.
    void afterPicking(std::function<void()> act) { m_act = std::move(act); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QFileDialog *dialog);

    QString m_folder;
    QVector<SeenPicker> m_pickers;
    std::function<void()> m_act;
    bool m_accepted = false;
};

} // namespace Tests

#endif
