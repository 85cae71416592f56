#include "Controllers/PathEncoding.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>

namespace Quillmont::Utility::Controllers {

namespace {

constexpr std::array<const char *, 4> userFolders{
    "HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"};

// U+FFFD replaces undecodable bytes, but a name may also contain it.
bool isLostIn(const char *variable)
{
    const QByteArray bytes = qgetenv(variable);
    const QByteArray replacement = QFile::encodeName(QString(QChar::ReplacementCharacter));
    return QFile::decodeName(bytes).count(QChar::ReplacementCharacter) != bytes.count(replacement);
}

} // namespace

bool PathEncoding::survives(const QString &path)
{
    return !path.contains(QChar::ReplacementCharacter)
        || std::none_of(userFolders.cbegin(), userFolders.cend(), isLostIn);
}

void PathEncoding::ignoreRelativeFolders()
{
    for (const char *variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
        if (QDir::isRelativePath(QFile::decodeName(qgetenv(variable))))
            qunsetenv(variable);
    }
}

} // namespace Quillmont::Utility::Controllers
