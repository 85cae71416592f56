#include "Doctor/Doctor.h"

#include "Doctor/CatalogueCheck.h"
#include "Doctor/Examination.h"
#include "Doctor/Options.h"
#include "Doctor/Page.h"
#include "Doctor/Plan.h"
#include "Doctor/Quoting.h"
#include "Doctor/Reasons.h"
#include "Doctor/TextReport.h"
#include "Library/Helpers/FileHelper.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/Catalogue.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>

#include <poll.h>
#include <unistd.h>

using Quillmont::Library::Helpers::FileHelper;

namespace Quillmont::Utility::Doctor {

namespace {

bool isReaderGone()
{
    struct pollfd output = {STDOUT_FILENO, POLLOUT, 0};
    return ::poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

} // namespace

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
    return finished(start());
}

// Nobody misses what they did not stay to read, as with "| head".
int Doctor::finished(int status)
{
    m_output->flush();
    if (m_output->status() == QTextStream::Ok || isReaderGone())
        return status;
    *m_errors << "orbwell-doctor: "
              << tr("The answer cannot be written: %1.").arg(m_output->device()->errorString())
              << '\n';
    return CouldNotLook;
}

int Doctor::start()
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
    QString problem;
    const QString content = catalogueText(&problem);
    if (!problem.isEmpty())
        return fail(tr("The catalogue %1 cannot be read: %2.")
                        .arg(quoted(path), Reasons::translated(problem)));
    if (content.isEmpty())
        return fail(tr("The catalogue %1 is empty.").arg(quoted(path)));
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

// Unlike the one beside the program, that of the options may be anything.
QString Doctor::catalogueText(QString *problem) const
{
    constexpr qint64 maxSize = 32LL * 1024 * 1024;
    return QTextStream(FileHelper::read(catalogueFile(), maxSize, problem)).readAll();
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
