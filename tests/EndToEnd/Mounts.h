#ifndef TESTS_ENDTOEND_MOUNTS_H
#define TESTS_ENDTOEND_MOUNTS_H

#include <QString>
#include <QStringList>

namespace Tests {

/// File systems that only this process and its children see; gone with the object.
class Mounts
{
public:
    /// Cuts this process off from the system's own, if it may; to be called before it has threads.
    static void separate();
    /// Whether that went well.
    static bool arePossible();

    Mounts() = default;
    ~Mounts();
    Mounts(const Mounts &) = delete;
    Mounts &operator=(const Mounts &) = delete;

    /// Puts an empty disk of @p kilobytes at the folder, which is made; false if it cannot be.
    bool addDisk(const QString &folder, int kilobytes);
    /// Shows the file or folder in the place of the other.
    bool show(const QString &source, const QString &place);
    /// Lets nobody write to the folder.
    bool protect(const QString &folder);

private:
    QStringList m_places;
};

} // namespace Tests

#endif
