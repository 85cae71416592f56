#include "Library/Helpers/XmlHelper.h"

#include "Library/Models/XmlInsertionModel.h"

namespace Quillmont::Library::Helpers {

XmlHelper::XmlHelper(QObject *parent, const QString &path)
    : QObject(parent)
    , m_path(path)
{ }

bool XmlHelper::insertValues(Models::XmlInsertionModel *)
{
    return false;
}

bool XmlHelper::removeConfig(Models::XmlConfigModel *)
{
    return false;
}

} // namespace Quillmont::Library::Helpers
