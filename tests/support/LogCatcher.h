#ifndef TESTS_SUPPORT_LOGCATCHER_H
#define TESTS_SUPPORT_LOGCATCHER_H

#include <QStringList>
#include <QtGlobal>

namespace Tests {

/// Collects what is written to the toolkit's log while it lives; one at a time.
class LogCatcher
{
public:
    LogCatcher();
    ~LogCatcher();
    LogCatcher(const LogCatcher &) = delete;
    LogCatcher &operator=(const LogCatcher &) = delete;

    /// The debug lines so far, in order.
    QStringList debugLines() const { return m_debugLines; }

    /// The warnings and worse so far, in order.
    QStringList warnings() const { return m_warnings; }

    /// Whether some debug line holds @p text.
    bool hasDebugLineWith(const QString &text) const;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &line);

    QStringList m_debugLines;
    QStringList m_warnings;
    QtMessageHandler m_before;
    static LogCatcher *s_current;
};

} // namespace Tests

#endif
