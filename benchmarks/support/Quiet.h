#ifndef BENCHMARKS_SUPPORT_QUIET_H
#define BENCHMARKS_SUPPORT_QUIET_H

#include <QtGlobal>

#include <cstdio>

namespace Benchmarks {

/// Discards the log, so that the time of a terminal to show it is not measured.
inline void beQuiet()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
}

} // namespace Benchmarks

#endif
