#ifndef TESTS_SUPPORT_LOGCATCHER_H
#define TESTS_SUPPORT_LOGCATCHER_H

#include <QStringList>
#include <QtGlobal>

#include <functional>

namespace Tests {

/// Collects Qt's log for its lifetime; there can be only one at a time.
class LogCatcher
{
public:
    LogCatcher();
    ~LogCatcher();
    LogCatcher(const LogCatcher &) = delete;
    LogCatcher &operator=(const LogCatcher &) = delete;

    /// The debug lines of every category so far, in order.
    QStringList debugLines() const { return m_debugLines; }

    /// The informational lines of the category "orbwell" so far, in order.
    QStringList actions() const { return m_actions; }

    /// All other lines so far, in order.
    QStringList warnings() const { return m_warnings; }

    /// Whether any debug line contains @p text.
    bool hasDebugLineWith(const QString &text) const;

    /// Calls @p look with each debug line as it is written.
    void atEachDebugLine(std::function<void(const QString &)> look) { m_look = std::move(look); }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &line);

    QStringList m_debugLines;
    QStringList m_actions;
    QStringList m_warnings;
    QtMessageHandler m_before;
    std::function<void(const QString &)> m_look;
    static LogCatcher *s_current;
};

} // namespace Tests

#endif
