#ifndef TESTS_SUPPORT_FOLDERPICKER_H
#define TESTS_SUPPORT_FOLDERPICKER_H

#include <QFileDialog>
#include <QObject>
#include <QString>
#include <QVector>

#include <functional>

namespace Tests {

/// What a person saw of one folder chooser.
struct SeenPicker
{
    QString title;
    QString directory;
    QFileDialog::Options options;
    const QWidget *parent;
};

/// Answers every folder chooser that opens while it lives, and remembers what it was like. The
/// choosers are the toolkit's own for that time, so that they open without a desktop.
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

    /// Runs @p act between the person's choice and the program's look at it.
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
