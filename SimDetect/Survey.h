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

/// One look around a computer. What it has read for one question it does not read for another.
class Survey
{
public:
    /// Looks for the simulators of the computer that @p environment describes.
    explicit Survey(const Environment &environment);

    /// Takes a new look around the computer that the program runs on; the last one is dropped.
    static Survey &renewed();

    /// The last such look, so that what GetAllSimPaths() has read is not read again; the first one
    /// where there was none.
    static Survey &last();

    /// Simulator code to installation folder, as GetAllSimPaths() answers.
    const QMap<QString, QString> &paths() const { return m_paths; }

    /// What was taken or turned down on the way, in that order.
    const QVector<Finding> &findings() const { return m_findings; }

    /// The Proton prefix of the game with Steam's number @p appId, an absolute path; empty where
    /// there is none.
    QString prefix(qint64 appId);

    /// The file @p relative in @p folder, spelled as on disk as far as it is there.
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
