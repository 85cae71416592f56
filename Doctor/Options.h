#ifndef DOCTOR_OPTIONS_H
#define DOCTOR_OPTIONS_H

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Quillmont::Utility::Doctor {

/// The options on the command line.
class Options
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::Options)

public:
    enum Task {
        Report,
        Plan,
        CheckCatalogue,
        Help,
        Version
    };

    /// @p arguments are those after the program's name.
    explicit Options(const QStringList &arguments);

    /// Why the command line is invalid, with a hint; empty if it is valid.
    const QString &problem() const { return m_problem; }

    Task task() const { return m_task; }

    bool isJson() const { return m_isJson; }

    /// "install", "repair" or "uninstall".
    const QString &plan() const { return m_plan; }

    /// The catalogue to use; empty for the one beside the program.
    const QString &catalogue() const { return m_catalogue; }

    /// The simulators to examine; empty for all.
    const QStringList &names() const { return m_names; }

    static QString help();

private:
    void takeAll(QStringList rest);
    void take(const QString &option, QStringList *rest);
    void takeTask(Task task, const QString &option);
    void takeCatalogue(const QString &option, QStringList *rest);
    void takePlan(const QString &option);
    void refuse(const QString &option);

    Task m_task = Report;
    QString m_taskOption; ///< What asked for a plan or a check.
    bool m_isJson = false;
    QString m_plan;
    QString m_catalogue;
    QStringList m_names;
    QString m_problem;
};

} // namespace Quillmont::Utility::Doctor

#endif
