#include "Controllers/SerialisedObject.h"

namespace Quillmont::Utility::Controllers {

// Without Qt Gui there are no pictures and colours; no folder is stored as one.
bool SerialisedObject::readPicture(int, qint64)
{
    return fail(Harmful);
}

} // namespace Quillmont::Utility::Controllers
