#include "tests/support/LogCatcher.h"

#include <algorithm>

namespace Tests {

LogCatcher *LogCatcher::s_current = nullptr;

LogCatcher::LogCatcher()
{
    Q_ASSERT(!s_current);
    s_current = this;
    m_before = qInstallMessageHandler(handle);
}

LogCatcher::~LogCatcher()
{
    qInstallMessageHandler(m_before);
    s_current = nullptr;
}

bool LogCatcher::hasDebugLineWith(const QString &text) const
{
    return std::any_of(m_debugLines.cbegin(), m_debugLines.cend(), [&text](const QString &line) {
        return line.contains(text);
    });
}

void LogCatcher::handle(QtMsgType type, const QMessageLogContext &context, const QString &line)
{
    if (type == QtInfoMsg && qstrcmp(context.category, "orbwell") == 0) {
        s_current->m_actions.append(line);
        return;
    }
    if (type != QtDebugMsg) {
        s_current->m_warnings.append(line);
        return;
    }
    s_current->m_debugLines.append(line);
    if (s_current->m_look)
        s_current->m_look(line);
}

} // namespace Tests
