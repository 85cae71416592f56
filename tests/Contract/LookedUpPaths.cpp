#include "tests/Contract/LookedUpPaths.h"

#include <QFile>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace {

QStringList &lookedUpPaths()
{
    static QStringList paths;
    return paths;
}

} // namespace

#ifdef Q_OS_LINUX
// Replaces the C library's function, which Qt calls to check whether a file exists.
extern "C" int access(const char *name, int type) noexcept
{
    lookedUpPaths().append(QFile::decodeName(name));
    return static_cast<int>(syscall(SYS_faccessat, AT_FDCWD, name, type));
}
#endif

namespace Tests {

bool canSeeLookUps()
{
    takeLookedUpPaths();
    QFile::exists(QStringLiteral("/"));
    return takeLookedUpPaths() == QStringList{QStringLiteral("/")};
}

QStringList takeLookedUpPaths()
{
    QStringList paths;
    paths.swap(lookedUpPaths());
    return paths;
}

} // namespace Tests
