#ifndef BENCHMARKS_SUPPORT_QUIET_H
#define BENCHMARKS_SUPPORT_QUIET_H

#include <QtGlobal>

#include <cstdio>

namespace Benchmarks {

/// Lets the log go nowhere: what a terminal takes to show it is not what is measured.
inline void beQuiet()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
}

} // namespace Benchmarks

#endif
