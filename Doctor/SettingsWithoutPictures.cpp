#include "Controllers/SerialisedObject.h"

namespace Quillmont::Utility::Controllers {

// Qt makes pictures and colours only where there is a display. No folder is one.
bool SerialisedObject::readPicture(int, qint64)
{
    return fail(Harmful);
}

} // namespace Quillmont::Utility::Controllers
