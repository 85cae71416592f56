#ifndef CONTROLLERS_PATHENCODING_H
#define CONTROLLERS_PATHENCODING_H

class QString;

namespace Quillmont::Utility::Controllers {

/// Tells paths whose bytes are lost. A folder of the user's need not have a name that is text in
/// this encoding; as text it is another folder's, which nobody asked for.
class PathEncoding
{
public:
    /// Whether @p path names what was meant: it does not lie below a home or data folder whose
    /// name in the environment does not survive the way into text.
    static bool survives(const QString &path);

    /// Takes relative folders out of the environment variables that name the user's, where they
    /// count as not set. For the start of a program, before any folder is asked for.
    static void ignoreRelativeFolders();
};

} // namespace Quillmont::Utility::Controllers

#endif
