#ifndef TESTS_SUPPORT_UNPRIVILEGED_H
#define TESTS_SUPPORT_UNPRIVILEGED_H

#include <QString>

namespace Tests {

/// For its lifetime, a test that runs as root runs as an ordinary user, to whom permissions apply
/// and to whom everything below the given folder belongs. Does nothing for other users.
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
