#ifndef TESTS_SIMDETECT_CASES_H
#define TESTS_SIMDETECT_CASES_H

#include <QByteArray>

namespace Tests {

/// The systems on which a case is tested.
enum On {
    OnLinux = 1,
    OnMacOS = 2,
    OnBoth = OnLinux | OnMacOS
};

/// Declares the columns of a case.
void caseColumns();

/// A case: with @p tree on the disk, exactly the simulators in @p found are found, and exactly the
/// lines in @p log are written. All three are in the format of DescribedComputer, and may be
/// indented; a log line "*" matches any lines.
void addCase(const QByteArray &name,
             On systems,
             const QByteArray &tree,
             const QByteArray &found,
             const QByteArray &log = {});

/// Tests the current case.
void checkCase();

} // namespace Tests

#endif
