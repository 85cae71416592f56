#include "ViewControllers/Payload/Leftovers.h"

#include "Controllers/UserFiles.h"
#include "Models/FileOperation.h"
#include "Models/FlightSimulatorMapping.h"

#include <QDir>
#include <QFile>

#include <filesystem>
#include <system_error>

using Quillmont::Utility::Controllers::userDataRoot;
using Quillmont::Utility::Models::FileOperation;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::ViewControllers {

namespace {

// What a folder's listing shows: nothing hidden, no link that leads nowhere, and a device, a pipe
// or a socket only through a link. What cannot be looked at may be shown.
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

// A number that the toolkit has no location for names no folder.
QString numberedFolder(int number)
{
    if (number < QStandardPaths::DesktopLocation || number > QStandardPaths::AppConfigLocation)
        return {};
    return userDataRoot(static_cast<QStandardPaths::StandardLocation>(number));
}

} // namespace

// Qt's listing takes a folder that cannot be listed for an empty one, and leaves names out that
// are no text.
bool isSurelyEmpty(const QDir &folder, const QSet<QString> &gone)
{
    std::error_code failure;
    std::filesystem::directory_iterator it(QFile::encodeName(folder.path()).toStdString(), failure);
    for (; !failure && it != std::filesystem::directory_iterator(); it.increment(failure)) {
        if (isVisible(*it) && !gone.contains(QFile::decodeName(it->path().c_str())))
            return false;
    }
    return !failure;
}

QString extraFile(const FlightSimulatorMapping *mapping, const FileOperation *operation)
{
    if (operation->root == QLatin1String("-1")) {
        const QString &base = mapping->note.isNull() ? mapping->path : mapping->note;
        // Joined by a backslash on every system, as the catalogues' authors expect it.
        return QDir::toNativeSeparators(base + QDir::toNativeSeparators(u'\\' + operation->path));
    }
    return QDir::toNativeSeparators(numberedFolder(operation->root.toInt()) + operation->path);
}

} // namespace Quillmont::Utility::ViewControllers
