#ifndef TESTS_SUPPORT_UNPRIVILEGED_H
#define TESTS_SUPPORT_UNPRIVILEGED_H

#include <QString>

namespace Tests {

/// While it lives, a test that runs as root works as an ordinary user, for whom permissions mean
/// something, and everything below the given folder is that user's. Others it changes nothing for.
class Unprivileged
{
public:
    explicit Unprivileged(const QString &folder);
    ~Unprivileged();
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

private:
    bool m_wasRoot;
};

} // namespace Tests

#endif
