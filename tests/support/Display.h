#ifndef TESTS_SUPPORT_DISPLAY_H
#define TESTS_SUPPORT_DISPLAY_H

#include <QPoint>
#include <QProcess>
#include <QString>

namespace Tests {

/// An X server without a screen, running for this object's lifetime, and a mouse.
class Display
{
public:
    explicit Display(int dotsPerInch = 96);
    ~Display();
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;

    /// Whether the server is running and there is a mouse.
    bool isUp() const { return !m_name.isEmpty(); }

    /// The value for DISPLAY.
    QString name() const { return m_name; }

    /// Moves the mouse there and clicks its left button; false on failure.
    bool click(QPoint at) const;

private:
    QProcess m_server;
    QString m_name;
};

} // namespace Tests

#endif
