#ifndef TESTS_SIMDETECT_CASES_H
#define TESTS_SIMDETECT_CASES_H

#include <QByteArray>

namespace Tests {

/// The systems whose layout a case is tried in.
enum On {
    OnLinux = 1,
    OnMacOS = 2,
    OnBoth = OnLinux | OnMacOS
};

/// Declares what a case of a data-driven test consists of.
void caseColumns();

/// A case: with @p tree on the disk, exactly the simulators in @p found are found, and exactly the
/// lines in @p log are written. All three are lines as DescribedComputer takes and gives them, and
/// may be indented; a log line "*" stands for any lines.
void addCase(const QByteArray &name,
             On systems,
             const QByteArray &tree,
             const QByteArray &found,
             const QByteArray &log = {});

/// Tries the current case.
void checkCase();

} // namespace Tests

#endif
