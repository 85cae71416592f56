#ifndef SIMDETECT_SURVEY_H
#define SIMDETECT_SURVEY_H

#include "SimDetect/Finding.h"
#include "SimDetect/FolderLookup.h"
#include "SimDetect/Steam/Steam.h"

#include <QMap>
#include <QString>
#include <QVector>

namespace Quillmont::SimDetect {

struct Environment;

/// One detection run on a computer. Each file is read once, whatever is asked.
class Survey
{
public:
    /// Looks for the simulators of the computer that @p environment describes.
    explicit Survey(const Environment &environment);

    /// Starts a new run on this computer, and drops the last one.
    static Survey &renewed();

    /// The last run, so that nothing is read again after GetAllSimPaths(); starts one if there was
    /// none.
    static Survey &last();

    /// Simulator code to installation folder, as GetAllSimPaths() returns them.
    const QMap<QString, QString> &paths() const { return m_paths; }

    /// All folders taken or turned down, in order.
    const QVector<Finding> &findings() const { return m_findings; }

    /// The absolute path of the Proton prefix of the game with the Steam app id @p appId; empty if
    /// there is none.
    QString prefix(qint64 appId);

    /// The file @p relative in @p folder, spelled as on disk as far as it exists.
    QString fileIn(const QString &folder, const QString &relative);

private:
    Q_DISABLE_COPY(Survey)

    FolderLookup m_lookup;
    Steam m_steam;
    QMap<QString, QString> m_paths;
    QVector<Finding> m_findings;
};

} // namespace Quillmont::SimDetect

#endif
