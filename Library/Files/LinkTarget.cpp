#include "Library/Files/LinkTarget.h"

#include <QFile>

#include <filesystem>
#include <system_error>

namespace Quillmont::Library::Files {

namespace {

namespace fs = std::filesystem;

// After a linked folder, ".." is the real parent folder, which the text does not show.
fs::path inRealFolder(const fs::path &path)
{
    std::error_code failure;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    const fs::path real = fs::canonical(folder, failure);
    return failure ? fs::path() : real / path.filename();
}

} // namespace

QByteArray linkTarget(const QString &path)
{
    if (path.contains(QChar::Null)) // the system would stop reading there
        return {};
    constexpr int maxLinks = 40; // the system's own limit
    fs::path place = inRealFolder(QFile::encodeName(path).toStdString());
    for (int i = 0; i <= maxLinks && !place.empty(); ++i) {
        std::error_code failure;
        const fs::path link = fs::read_symlink(place, failure);
        if (failure == std::errc::invalid_argument // not a link
            || failure == std::errc::no_such_file_or_directory)
            return QByteArray::fromStdString(place.native());
        place = failure ? fs::path() : inRealFolder(place.parent_path() / link);
    }
    return {};
}

} // namespace Quillmont::Library::Files
