#include "Doctor/Doctor.h"

#include "Doctor/CatalogueCheck.h"
#include "Doctor/Examination.h"
#include "Doctor/Options.h"
#include "Doctor/Page.h"
#include "Doctor/Plan.h"
#include "Doctor/Quoting.h"
#include "Doctor/TextReport.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/Catalogue.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>

namespace Quillmont::Utility::Doctor {

Doctor::Doctor(const Options &options, QTextStream *output, QTextStream *errors)
    : m_options(options)
    , m_output(output)
    , m_errors(errors)
{
    // Only warnings of the shared code's log are useful here.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));
}

int Doctor::run()
{
    if (!m_options.problem().isEmpty())
        return fail(m_options.problem());
    switch (m_options.task()) {
    case Options::Help:
        *m_output << Options::help();
        return Fine;
    case Options::Version:
        *m_output << "orbwell-doctor " << QCoreApplication::applicationVersion() << '\n';
        return Fine;
    default:
        return look();
    }
}

int Doctor::look()
{
    const QString path = catalogueFile();
    const QString content
        = QFileInfo(path).isFile() ? ViewControllers::catalogueText(path) : QString();
    if (content.isEmpty())
        return fail(tr("The catalogue %1 is missing, empty or cannot be read.").arg(quoted(path)));
    if (m_options.task() == Options::CheckCatalogue)
        return answer(CatalogueCheck(content.toUtf8(), payloadFolder()).json());
    if (!QJsonDocument::fromJson(content.toLocal8Bit()).isArray())
        return fail(tr("The catalogue %1 is no JSON array; --check-catalogue says more.")
                        .arg(quoted(path)));
    return examine(content);
}

int Doctor::examine(const QString &catalogue)
{
    QObject owner;
    const QList<Simulator> simulators = simulatorsIn(catalogue, &owner);
    if (!areKnown(simulators))
        return CouldNotLook;
    return answer(m_options.task() == Options::Plan
                      ? Plan::of(m_options.plan(), simulators, payloadFolder(), m_options.names())
                      : Examination(simulators, payloadFolder()).report(m_options.names()));
}

int Doctor::answer(const QJsonObject &answer)
{
    if (m_options.isJson()) {
        printJson(answer);
    } else {
        Page page = Page::forStandardOutput();
        if (m_options.task() == Options::CheckCatalogue)
            CatalogueCheck::write(answer, catalogueFile(), &page);
        else if (m_options.task() == Options::Plan)
            Plan::write(answer, &page);
        else
            TextReport::write(answer, &page);
        *m_output << page.text();
    }
    return answer.value(QLatin1String("fine")).toBool() ? Fine : SomethingWrong;
}

void Doctor::printJson(QJsonObject answer)
{
    answer.insert(QStringLiteral("format"), 1);
    answer.insert(QStringLiteral("version"), QCoreApplication::applicationVersion());
    answer.insert(QStringLiteral("catalogue"), catalogueFile());
    *m_output << QString::fromUtf8(QJsonDocument(answer).toJson());
}

bool Doctor::areKnown(const QList<Simulator> &simulators)
{
    for (const QString &name : m_options.names()) {
        const bool isKnown
            = std::any_of(simulators.cbegin(), simulators.cend(), [&name](const Simulator &each) {
                  return each.mapping->scan->name == name;
              });
        if (!isKnown) {
            fail(tr("The catalogue has no simulator %1.").arg(quoted(name)));
            return false;
        }
    }
    return true;
}

int Doctor::fail(const QString &problem)
{
    *m_errors << "orbwell-doctor: " << problem << '\n'
              << tr("Try \"orbwell-doctor --help\".") << '\n';
    return CouldNotLook;
}

QString Doctor::catalogueFile() const
{
    return m_options.catalogue().isEmpty() ? ViewControllers::catalogueFile()
                                           : m_options.catalogue();
}

// A catalogue given as an option may have its own payload beside it.
QString Doctor::payloadFolder() const
{
    const QString beside = QFileInfo(m_options.catalogue()).path() + QStringLiteral("/plugins/");
    return !m_options.catalogue().isEmpty() && QFileInfo(beside).isDir()
        ? beside
        : ViewControllers::payloadFolder();
}

} // namespace Quillmont::Utility::Doctor
