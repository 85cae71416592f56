#ifndef CONTROLLERS_PATHENCODING_H
#define CONTROLLERS_PATHENCODING_H

class QString;

namespace Quillmont::Utility::Controllers {

/// Detects paths that cannot be decoded. A folder's name need not be valid text in this encoding;
/// decoded, it would name another folder.
class PathEncoding
{
public:
    /// False if @p path is inside a home or data folder whose name in the environment cannot be
    /// decoded.
    static bool survives(const QString &path);

    /// Unsets the environment variables that name the user's folders if they are relative, since
    /// they then count as not set. Call it before any folder is requested.
    static void ignoreRelativeFolders();
};

} // namespace Quillmont::Utility::Controllers

#endif
