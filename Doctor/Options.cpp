#include "Doctor/Options.h"

#include "Doctor/Quoting.h"

namespace Quillmont::Utility::Doctor {

Options::Options(const QStringList &arguments)
{
    takeAll(arguments);
    if (m_problem.isEmpty() && m_task == CheckCatalogue && !m_names.isEmpty())
        m_problem = tr("--check-catalogue takes no names.");
}

void Options::takeAll(QStringList rest)
{
    while (!rest.isEmpty() && m_problem.isEmpty()) {
        const QString argument = rest.takeFirst();
        if (argument == QLatin1String("--")) {
            m_names += rest;
            return;
        }
        if (argument.startsWith(u'-') && argument.size() > 1)
            take(argument, &rest);
        else
            m_names.append(argument);
    }
}

void Options::take(const QString &option, QStringList *rest)
{
    if (option == QLatin1String("--json"))
        m_isJson = true;
    else if (option == QLatin1String("--help") || option == QLatin1String("-h"))
        m_task = Help;
    else if (option == QLatin1String("--version"))
        m_task = Version;
    else if (option == QLatin1String("--check-catalogue"))
        takeTask(CheckCatalogue, option);
    else if (option == QLatin1String("--plan") || option.startsWith(QLatin1String("--plan=")))
        takePlan(option);
    else if (option == QLatin1String("--catalogue")
             || option.startsWith(QLatin1String("--catalogue=")))
        takeCatalogue(option, rest);
    else
        refuse(option);
}

void Options::takeTask(Task task, const QString &option)
{
    if (!m_taskOption.isEmpty() && m_taskOption != option)
        m_problem = tr("%1 and %2 exclude each other.").arg(m_taskOption, printable(option));
    m_task = task;
    m_taskOption = option;
}

void Options::takePlan(const QString &option)
{
    takeTask(Plan, option);
    m_plan = option.contains(u'=') ? option.section(u'=', 1) : QStringLiteral("install");
    if (m_plan != QLatin1String("install") && m_plan != QLatin1String("repair")
        && m_plan != QLatin1String("uninstall"))
        m_problem
            = tr(R"(%1: a plan is for "install", "repair" or "uninstall".)").arg(printable(option));
}

void Options::takeCatalogue(const QString &option, QStringList *rest)
{
    if (option.contains(u'='))
        m_catalogue = option.section(u'=', 1);
    else if (!rest->isEmpty())
        m_catalogue = rest->takeFirst();
    if (m_catalogue.isEmpty())
        m_problem = tr("--catalogue needs a file.");
}

void Options::refuse(const QString &option)
{
    const QString unknown = printable(option);
    m_problem = tr("Unknown option %1.").arg(unknown);
    const QString begin = option.section(u'=', 0, 0).left(4);
    for (const char *known :
         {"--json", "--plan", "--check-catalogue", "--catalogue", "--help", "--version"}) {
        if (QLatin1String(known).startsWith(begin, Qt::CaseInsensitive) && begin.size() > 2) {
            m_problem = tr("Unknown option %1. Is %2 meant?").arg(unknown, QLatin1String(known));
            return;
        }
    }
}

QString Options::help()
{
    return tr(
        "Usage: orbwell-doctor [OPTION...] [NAME...]\n"
        "Says what is wrong with the simulators and the Orbwell plugin in them. Changes nothing.\n"
        "\n"
        "  --json               the report, plan or check as JSON\n"
        "  --plan[=WHAT]        what an \"install\" (the default), \"repair\" or \"uninstall\" "
        "would do\n"
        "  --catalogue FILE     use another catalogue, and the folder \"plugins\" beside it, if "
        "any\n"
        "  --check-catalogue    only what is wrong in the catalogue\n"
        "  --help, --version\n"
        "\n"
        "NAMEs limit the report or the plan to those simulators.\n"
        "Status: 0 nothing wrong, 1 something wrong, 2 it could not look.\n");
}

} // namespace Quillmont::Utility::Doctor
