#include "SimDetect/Environment.h"

#include <QDir>
#include <QProcessEnvironment>

namespace Quillmont::SimDetect {

Environment Environment::current()
{
    Environment environment;
#ifdef Q_OS_MACOS
    environment.system = MacOS;
#endif
    // Without HOME Qt reports "/", which is nobody's home.
    if (!qEnvironmentVariableIsEmpty("HOME"))
        environment.home = QDir::homePath();
    const auto variables = QProcessEnvironment::systemEnvironment();
    const auto names = variables.keys();
    for (const auto &name : names)
        environment.variables.insert(name, variables.value(name));
    return environment;
}

QString Environment::inHome(const QString &relative) const
{
    if (!home.startsWith(u'/'))
        return {};
    return QDir::cleanPath(home + u'/' + relative);
}

QString Environment::inRoot(const QString &absolute) const
{
    return QDir::cleanPath(root + absolute);
}

} // namespace Quillmont::SimDetect
