#ifndef SIMDETECT_FINDING_H
#define SIMDETECT_FINDING_H

#include <QString>

namespace Quillmont::SimDetect {

/// Where a simulator was looked for, and what came of it.
struct Finding
{
    QString code; ///< The simulator's.
    QString origin; ///< What named the place: a list, Steam, a well-known folder.
    QString path; ///< The folder, or whatever the user should look at.
    QString objection; ///< Why it was turned down; empty for the folder that was taken.
};

} // namespace Quillmont::SimDetect

#endif
