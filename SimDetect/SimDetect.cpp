#include "SimDetect/SimDetect.h"

#include "SimDetect/Environment.h"

namespace Quillmont::SimDetect {

QMap<QString, QString> GetAllSimPaths()
{
    return simPaths(Environment::current());
}

QMap<QString, QString> simPaths(const Environment &)
{
    return {};
}

} // namespace Quillmont::SimDetect
