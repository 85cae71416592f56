#ifndef TESTS_SUPPORT_BOXANSWERER_H
#define TESTS_SUPPORT_BOXANSWERER_H

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QVector>

#include <functional>

namespace Tests {

/// A message box as a user saw it.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    const QWidget *parent;
    /// Whether the busy pointer was shown while the box was open.
    bool busyPointer;
};

/// Presses Ok in every message box during its lifetime, and records the boxes.
class BoxAnswerer : public QObject
{
    Q_OBJECT

public:
    BoxAnswerer();

    /// The boxes so far, in the order in which they opened.
    const QVector<SeenBox> &boxes() const { return m_boxes; }

    /// Runs @p look while a box is open, before it is answered.
    void whileOpen(std::function<void()> look) { m_look = std::move(look); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QMessageBox *box);

    QVector<SeenBox> m_boxes;
    std::function<void()> m_look;
};

} // namespace Tests

#endif
