#ifndef TESTS_ENDTOEND_MOUNTS_H
#define TESTS_ENDTOEND_MOUNTS_H

#include <QString>
#include <QStringList>

namespace Tests {

/// File systems that only this process and its children see; unmounted with the object.
class Mounts
{
public:
    /// Gives this process its own mount namespace, if permitted; call it before there are threads.
    static void separate();

    Mounts() = default;
    ~Mounts();
    Mounts(const Mounts &) = delete;
    Mounts &operator=(const Mounts &) = delete;

    /// Mounts an empty disk of @p kilobytes at the folder, which is created; false on failure.
    bool addDisk(const QString &folder, int kilobytes);
    /// Bind-mounts @p source at @p place.
    bool show(const QString &source, const QString &place);
    /// Makes the folder read-only for everybody.
    bool protect(const QString &folder);

private:
    QStringList m_places;
};

} // namespace Tests

#endif
