#include "Doctor/ConfigurationCheck.h"

#include "Controllers/UserFiles.h"
#include "Doctor/Advice.h"
#include "Doctor/Backups.h"
#include "Doctor/PlannedDisk.h"
#include "Doctor/Problems.h"
#include "Doctor/Quoting.h"
#include "Doctor/Reasons.h"
#include "Doctor/TagReader.h"
#include "Doctor/TextPlaces.h"
#include "Doctor/WindowsPath.h"
#include "Doctor/XmlDamage.h"
#include "Library/Helpers/FileHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/XmlDocument.h"
#include "Library/Xml/editedXml.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/SimulatorFiles.h"

#include <QFileInfo>
#include <QStringList>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Library::Text::XmlSource;
using Quillmont::Library::Xml::RootChild;
using Quillmont::Library::Xml::XmlDocument;
using Quillmont::Utility::Controllers::userDataRoot;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::Doctor {

namespace {

QString childText(const RootChild &entry, const char *name)
{
    for (const auto &child : entry.children) {
        if (child.name == QLatin1String(name))
            return Library::Xml::XmlSpace::trimmed(child.text);
    }
    return {};
}

bool isDisabled(const RootChild &entry)
{
    return childText(entry, "Disabled").compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

} // namespace

ConfigurationCheck::ConfigurationCheck(const FlightSimulatorMapping *mapping,
                                       bool isInstalled,
                                       Problems *problems)
    : m_mapping(mapping)
    , m_entry(mapping->scan)
    , m_isInstalled(isInstalled)
    , m_problems(problems)
{
    if (m_entry->type != 0 || !m_entry->config) {
        m_json.insert(QStringLiteral("state"), QStringLiteral("none"));
    } else if (!ViewControllers::hasConfigurationFile(mapping)) {
        m_json.insert(QStringLiteral("state"), QStringLiteral("no prefix"));
        if (isInstalled)
            m_problems->addError(
                tr("The simulator has no Proton prefix, so its configuration file is unknown."),
                tr("Start the simulator once from Steam, then install again."));
    } else {
        lookAt(ViewControllers::configurationFile(mapping));
    }
}

void ConfigurationCheck::lookAt(const QString &path)
{
    m_path = path;
    m_json.insert(QStringLiteral("path"), path);
    judgeAccess();
    if (!m_entry->config->prefix.isEmpty())
        m_json.insert(QStringLiteral("prefix"), userDataRoot() + m_entry->config->prefix);
    if (FileHelper::isMissing(path)) {
        m_json.insert(QStringLiteral("state"),
                      QFileInfo(path).isSymLink() ? QStringLiteral("dead link")
                                                  : QStringLiteral("missing"));
        if (m_isInstalled)
            m_problems->addError(tr("The configuration file %1 is missing.").arg(quoted(path)),
                                 tr("Uninstall and install again; the file is made anew."));
        return;
    }
    m_backups = backupsOf(path);
    readFile();
}

void ConfigurationCheck::readFile()
{
    QString problem;
    const QByteArray bytes = FileHelper::read(m_path, Library::Xml::maxFileSize, &problem);
    m_json.insert(QStringLiteral("size"), QFileInfo(m_path).size());
    if (problem.isEmpty()) {
        read(bytes);
    } else {
        m_json.insert(QStringLiteral("state"), QStringLiteral("unreadable"));
        m_problems->addError(tr("The configuration file %1 cannot be read: %2.")
                                 .arg(quoted(m_path), Reasons::translated(problem)),
                             Advice::onUnreadable(m_path, problem));
    }
}

// A link to a file that can be made where it leads is as good as that file.
void ConfigurationCheck::judgeAccess()
{
    PlannedDisk disk;
    disk.makeFolderOf(m_path);
    const bool isWritable = disk.mayReplace(m_path);
    m_json.insert(QStringLiteral("writable"), isWritable);
    const QString link = ViewControllers::deadLinksOn(m_path).value(0);
    if (!isWritable && !link.isEmpty())
        m_problems->addError(
            tr("The configuration file cannot be made: %1 is a link that leads nowhere.")
                .arg(quoted(link)),
            tr("Delete the link, then install."));
    else if (!isWritable)
        m_problems->addError(
            tr("You may not change the configuration file %1, or not write in its folder.")
                .arg(quoted(m_path)),
            tr("Give yourself the right to write there."));
}

void ConfigurationCheck::read(const QByteArray &bytes)
{
    const XmlSource source(bytes);
    m_json.insert(QStringLiteral("encoding"), source.encoding().name());
    const QString problem
        = XmlDocument(source.text(), [](const RootChild &) { return false; }).problem();
    m_json.insert(QStringLiteral("state"),
                  problem.isEmpty() ? QStringLiteral("well formed") : QStringLiteral("damaged"));
    const int strange = firstInvalid(source);
    if (strange >= 0)
        m_json.insert(QStringLiteral("strangeBytesInLine"), lineAt(source.text(), strange));
    if (!problem.isEmpty())
        return describeDamage(source.text(), problem);
    if (isWebPage(source.text()))
        m_problems->addGrave(tr("The configuration file %1 is a web page.").arg(quoted(m_path)),
                             Advice::onWebPage(m_backups));
    lookAtEntries(source.text());
}

void ConfigurationCheck::describeDamage(const QString &text, const QString &problem)
{
    const XmlDamage damage(text, problem);
    m_json.insert(QStringLiteral("damage"),
                  QJsonObject{{QStringLiteral("text"), damage.sentence()},
                              {QStringLiteral("line"), damage.line()},
                              {QStringLiteral("column"), damage.column()},
                              {QStringLiteral("brokenLine"), damage.brokenLine()}});
    m_problems->addGrave(
        tr("The configuration file %1 is damaged. %2").arg(quoted(m_path), damage.sentence()),
        Advice::onDamage(m_backups));
}

void ConfigurationCheck::lookAtEntries(const QString &text)
{
    const XmlDocument document(
        text, [this](const RootChild &child) { return child.name == m_entry->config->element; });
    int count = 0;
    for (const RootChild &entry : document.wanted()) {
        if (!Library::Xml::isOurs(entry, *m_entry->config)) {
            lookAtOthers(entry);
        } else {
            lookAtOurs(entry);
            ++count;
        }
    }
    m_ours.insert(QStringLiteral("count"), count);
    m_json.insert(QStringLiteral("ours"), m_ours);
    m_json.insert(QStringLiteral("othersWithoutFile"), m_others);
    judge(count);
}

// Of several the worst counts: the simulator reads them all.
void ConfigurationCheck::lookAtOurs(const RootChild &entry)
{
    const QString path = childText(entry, "Path");
    const bool isThere = path.isEmpty() || isFileThere(path);
    const bool isFirst = m_ours.isEmpty();
    if (isFirst || isDisabled(entry))
        m_ours.insert(QStringLiteral("disabled"), isDisabled(entry));
    if (!isFirst && (isThere || !m_ours.value(QLatin1String("fileThere")).toBool()))
        return;
    m_ours.insert(QStringLiteral("path"), path);
    m_ours.insert(QStringLiteral("fileThere"), isThere);
}

// Listed, not judged: other makers may have their reasons.
void ConfigurationCheck::lookAtOthers(const RootChild &entry)
{
    const QString path = childText(entry, "Path");
    if (!path.isEmpty() && !isFileThere(path))
        m_others.append(QJsonObject{{QStringLiteral("name"), childText(entry, "Name")},
                                    {QStringLiteral("path"), path}});
}

void ConfigurationCheck::judge(int count)
{
    const QString file = quoted(m_path);
    const QString again = tr("Uninstall and install again.");
    if (count == 0 && m_isInstalled && m_entry->root < 1 && m_entry->config->describesEntry())
        m_problems->addError(
            tr("The plugin's files are there, but %1 has no entry for it.").arg(file), again);
    if (count > 0 && !m_isInstalled)
        m_problems->addError(
            tr("%1 has an entry for the plugin, whose files are not there.").arg(file),
            tr("Install it, or uninstall it to take the entry out."));
    if (count > 1)
        m_problems->addWarning(tr("Our entry is in %1 %2 times.").arg(file, QString::number(count)),
                               again);
    if (m_ours.value(QLatin1String("disabled")).toBool())
        m_problems->addError(tr("Our entry in %1 is disabled.").arg(file), again);
    if (count > 0 && !m_ours.value(QLatin1String("fileThere")).toBool())
        m_problems->addError(tr("Our entry in %1 names the file %2, which is missing.")
                                 .arg(file, quoted(m_ours.value(QLatin1String("path")).toString())),
                             again);
}

bool ConfigurationCheck::isFileThere(const QString &path) const
{
    const QString prefix = m_entry->config->prefix;
    return WindowsPath(prefix.isEmpty() ? QString() : userDataRoot() + prefix,
                       ViewControllers::simulatorFolder(m_mapping))
        .mayExist(path);
}

} // namespace Quillmont::Utility::Doctor
