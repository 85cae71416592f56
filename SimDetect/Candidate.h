#ifndef SIMDETECT_CANDIDATE_H
#define SIMDETECT_CANDIDATE_H

#include <QString>

namespace Quillmont::SimDetect {

/// What some source says about where a simulator is.
struct Candidate
{
    /// The folder as the source names it; with an objection, whatever the user should look at.
    QString path;
    /// Why the source is not to be believed; empty where the folder itself decides.
    QString objection;
};

} // namespace Quillmont::SimDetect

#endif
