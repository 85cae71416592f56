#include "ViewControllers/Payload/Leftovers.h"

#include "Controllers/UserFiles.h"
#include "Models/FileOperation.h"
#include "Models/FlightSimulatorMapping.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

using Quillmont::Utility::Controllers::userDataRoot;
using Quillmont::Utility::Models::FileOperation;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

namespace {

// Whether a file manager shows the entry: nothing hidden, no dangling link, and a device, pipe or
// socket only through a link. What cannot be accessed counts as visible.
bool isVisible(const std::filesystem::directory_entry &entry)
{
    using std::errc;
    using std::filesystem::file_type;

    std::error_code failure;
    const auto status = entry.status(failure);
    const bool isMissing = status.type() == file_type::not_found
        || failure == errc::too_many_symbolic_link_levels || failure == errc::filename_too_long;
    const bool isSpecial = std::filesystem::is_other(status) && status.type() != file_type::unknown;
    std::error_code ignored;
    return entry.path().filename().native().front() != '.' && !isMissing
        && (!isSpecial || entry.is_symlink(ignored));
}

// A number that is no QStandardPaths location names no folder.
QString numberedFolder(int number)
{
    if (number < QStandardPaths::DesktopLocation || number > QStandardPaths::AppConfigLocation)
        return {};
    return userDataRoot(static_cast<QStandardPaths::StandardLocation>(number));
}

} // namespace

QString realFolder(const QString &folder)
{
    const bool leadsUp = (folder + u'/').contains(QLatin1String("/../"));
    return leadsUp ? QFileInfo(folder).canonicalFilePath() : folder;
}

// Not QDir: it takes an unreadable folder for an empty one, and omits names that cannot be decoded.
bool lookInto(const QDir &folder, const std::function<bool(const QString &)> &see)
{
    std::error_code failure;
    std::filesystem::directory_iterator it(QFile::encodeName(folder.path()).toStdString(), failure);
    for (; !failure && it != std::filesystem::directory_iterator(); it.increment(failure)) {
        if (isVisible(*it) && !see(QFile::decodeName(it->path().c_str())))
            return true;
    }
    return !failure;
}

bool isSurelyEmpty(const QDir &folder)
{
    bool isEmpty = true;
    const bool isListed = lookInto(folder, [&isEmpty](const QString &) { return isEmpty = false; });
    return isListed && isEmpty;
}

QString extraFile(const FlightSimulatorMapping *mapping, const FileOperation *operation)
{
    if (operation->root == QLatin1String("-1")) {
        const QString &base = mapping->note.isNull() ? mapping->path : mapping->note;
        // Joined with a backslash on every system, as the catalogues' authors expect.
        return QDir::toNativeSeparators(base + QDir::toNativeSeparators(u'\\' + operation->path));
    }
    return QDir::toNativeSeparators(numberedFolder(operation->root.toInt()) + operation->path);
}

} // namespace Quillmont::Utility::ViewControllers
