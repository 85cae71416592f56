#ifndef SIMDETECT_CANDIDATE_H
#define SIMDETECT_CANDIDATE_H

#include <QString>

namespace Quillmont::SimDetect {

/// What some source says about where a simulator is.
struct Candidate
{
    /// The folder as the source names it; with an objection, whatever the user should look at.
    QString path;
    /// Why the source cannot be used; empty if only the folder has to be checked.
    QString objection;
};

} // namespace Quillmont::SimDetect

#endif
