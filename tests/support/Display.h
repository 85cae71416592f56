#ifndef TESTS_SUPPORT_DISPLAY_H
#define TESTS_SUPPORT_DISPLAY_H

#include <QPoint>
#include <QProcess>
#include <QString>

namespace Tests {

/// An X server without a screen, for as long as it lives, and a mouse on it.
class Display
{
public:
    explicit Display(int dotsPerInch = 96);
    ~Display();
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;

    /// Whether the server runs and a mouse is at hand.
    bool isUp() const { return !m_name.isEmpty(); }

    /// What DISPLAY has to say.
    QString name() const { return m_name; }

    /// Moves the mouse there and presses its left button; false if that was not possible.
    bool click(QPoint at) const;

private:
    QProcess m_server;
    QString m_name;
};

} // namespace Tests

#endif
