#include "ViewControllers/Payload/SteamPrefix.h"

#include "Controllers/UserFiles.h"
#include "Library/Models/XmlConfigModel.h"
#include "SimDetect/Survey.h"

#include <QFileInfo>

#include <algorithm>

using Quillmont::Library::Models::XmlConfigModel;
using Quillmont::SimDetect::Survey;
using Quillmont::Utility::Controllers::userDataRoot;

namespace Quillmont::Utility::ViewControllers {

namespace {

// @p path relative to the data root, which may be a link: with enough steps up, the path leads to
// "/" both as the system resolves it, from the link's target, and as text, which is the only way
// while the data root is missing.
QString wayFromDataRoot(const QString &path)
{
    const QString root = userDataRoot();
    if (path.startsWith(root))
        return path.mid(root.size());
    const QString real = QFileInfo(root).canonicalFilePath();
    const auto steps = std::max(root.count(u'/'), real.count(u'/'));
    const QString up = QStringLiteral("/..").repeated(steps);
    return up.mid(root.endsWith(u'/') ? 1 : 0) + path;
}

} // namespace

void findPrefix(XmlConfigModel *config)
{
    if (config->steam == 0)
        return;
    Survey &survey = Survey::last();
    const bool isNamed = config->steam > 0 && !config->path.isEmpty();
    const QString prefix = isNamed ? survey.prefix(config->steam) : QString();
    config->prefix = prefix.isEmpty() ? QString() : wayFromDataRoot(prefix);
    // Folders are spelled as on disk; the file's own letter case is resolved when it is edited.
    const int name = config->path.lastIndexOf(u'/') + 1;
    const QString folder = survey.fileIn(prefix, config->path.left(name));
    config->path = config->prefix.isEmpty()
        ? QString()
        : config->prefix + folder.mid(prefix.size()) + u'/' + config->path.mid(name);
}

} // namespace Quillmont::Utility::ViewControllers
