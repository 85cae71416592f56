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
    environment.home = QDir::homePath();
    const auto variables = QProcessEnvironment::systemEnvironment();
    for (const auto &name : variables.keys())
        environment.variables.insert(name, variables.value(name));
    return environment;
}

} // namespace Quillmont::SimDetect
