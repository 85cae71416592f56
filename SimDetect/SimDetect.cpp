#include "SimDetect/SimDetect.h"

#include "SimDetect/Survey.h"

namespace Quillmont::SimDetect {

QMap<QString, QString> GetAllSimPaths()
{
    return Survey::renewed().paths();
}

QMap<QString, QString> simPaths(const Environment &environment)
{
    return Survey(environment).paths();
}

} // namespace Quillmont::SimDetect
