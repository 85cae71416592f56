#ifndef DOCTOR_OPTIONS_H
#define DOCTOR_OPTIONS_H

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Quillmont::Utility::Doctor {

/// What the command line asks for.
class Options
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    enum Task {
        Report,
        Plan,
        CheckCatalogue,
        Help,
        Version
    };

    /// @p arguments are those behind the program's name.
    explicit Options(const QStringList &arguments);

    /// Why the command line is refused, with a hint; empty if it is not.
    const QString &problem() const { return m_problem; }

    Task task() const { return m_task; }

    bool isJson() const { return m_isJson; }

    /// "install", "repair" or "uninstall".
    const QString &plan() const { return m_plan; }

    /// The catalogue asked for; empty for the one beside the program.
    const QString &catalogue() const { return m_catalogue; }

    /// The simulators asked for; none for all.
    const QStringList &names() const { return m_names; }

    static QString help();

private:
    void take(const QString &option, QStringList *rest);
    void takeCatalogue(const QString &option, QStringList *rest);
    void takePlan(const QString &option);
    void refuse(const QString &option);

    Task m_task = Report;
    bool m_isJson = false;
    QString m_plan;
    QString m_catalogue;
    QStringList m_names;
    QString m_problem;
};

} // namespace Quillmont::Utility::Doctor

#endif
