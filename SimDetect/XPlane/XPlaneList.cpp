#include "SimDetect/XPlane/XPlaneList.h"

#include "SimDetect/RegularFile.h"

#include <QFileInfo>
#include <QTextStream>

namespace Quillmont::SimDetect {

namespace {

// More installations than anybody has; each one costs disk access.
constexpr int maxFolders = 256;

} // namespace

QVector<Candidate> XPlaneList::read(const QString &path, qint64 &allowance)
{
    if (!QFileInfo::exists(path))
        return {};
    const RegularFile file(path, allowance);
    if (!file.problem().isEmpty())
        return {{path, file.problem()}};
    QTextStream text(file.content());
    text.setCodec("UTF-8");
    QVector<Candidate> candidates;
    while (!text.atEnd() && candidates.size() < maxFolders) {
        const QString line = text.readLine().trimmed();
        if (!line.isEmpty())
            candidates.append({line, {}});
    }
    return candidates;
}

} // namespace Quillmont::SimDetect
