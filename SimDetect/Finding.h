#ifndef SIMDETECT_FINDING_H
#define SIMDETECT_FINDING_H

#include <QString>

namespace Quillmont::SimDetect {

/// A folder that was checked for a simulator, with the result.
struct Finding
{
    QString code; ///< The simulator's.
    QString origin; ///< What named the folder: a list, Steam, a well-known place.
    QString path; ///< The folder, or the file that the user should look at.
    QString objection; ///< Why it was turned down; empty for the folder that was taken.
};

} // namespace Quillmont::SimDetect

#endif
