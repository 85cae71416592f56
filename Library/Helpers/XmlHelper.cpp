#include "Library/Helpers/XmlHelper.h"

#include "Library/Helpers/EncodedText.h"
#include "Library/Helpers/FileWriter.h"
#include "Library/Helpers/XmlDocument.h"
#include "Library/Helpers/XmlEntryEdit.h"
#include "Library/Helpers/XmlEntryMatch.h"
#include "Library/Models/XmlInsertionModel.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <functional>

namespace Quillmont::Library::Helpers {

namespace {

using Change = std::function<void(XmlEntryEdit *)>;

/// The content of the file at @p path; on failure @p problem says why.
QByteArray read(const QString &path, QString *problem)
{
    // Configuration files have some kilobytes; what is bigger than this only eats up memory.
    constexpr qint64 biggestSize = 32 * 1024 * 1024;
    QFile file(path);
    if (!QFileInfo(path).isFile())
        *problem = QStringLiteral("not a regular file");
    else if (file.size() > biggestSize)
        *problem = QStringLiteral("too big");
    else if (!file.open(QIODevice::ReadOnly))
        *problem = file.errorString();
    const QByteArray bytes = problem->isEmpty() ? file.read(biggestSize) : QByteArray();
    if (problem->isEmpty() && file.error() != QFileDevice::NoError)
        *problem = file.errorString();
    return bytes;
}

/// What is wrong with @p bytes, which came of a change.
QString problemAfter(const EncodedText &before, const QByteArray &bytes)
{
    if (bytes.isNull())
        return QStringLiteral("foreign characters would change");
    // What stood at both sides of an element may have become the end of a CDATA section.
    if (!before.text().contains(QLatin1String("]]")))
        return {};
    const EncodedText after(bytes);
    return XmlDocument(after.text(), [](const XmlElement &) { return false; }).problem();
}

QString edit(const QString &path, const XmlDocument::Filter &isOurs, const Change &change)
{
    QString problem;
    const EncodedText source(read(path, &problem));
    if (!problem.isEmpty())
        return problem;
    const XmlDocument document(source.text(), isOurs);
    if (!document.problem().isEmpty())
        return document.problem();

    XmlEntryEdit edit(source, document);
    change(&edit);
    if (!edit.problem().isEmpty() || edit.splices().isEmpty())
        return edit.problem();

    const QByteArray bytes = source.spliced(edit.splices());
    problem = problemAfter(source, bytes);
    if (problem.isEmpty())
        FileWriter::write(path, bytes, &problem);
    return problem;
}

bool report(const QString &path, const QString &problem)
{
    if (!problem.isEmpty())
        qDebug().noquote().nospace()
            << "configuration file not changed: " << path << ", " << problem;
    return problem.isEmpty();
}

} // namespace

XmlHelper::XmlHelper(QObject *parent, const QString &path)
    : QObject(parent)
    , m_path(path)
{ }

bool XmlHelper::insertValues(Models::XmlInsertionModel *model)
{
    if (!model || !model->describesEntry())
        return true;
    const auto isOurs = [model](const XmlElement &entry) {
        return XmlEntryMatch::isOurs(entry, *model) || XmlEntryMatch::isComplete(entry, *model);
    };
    return report(m_path,
                  edit(m_path, isOurs, [model](XmlEntryEdit *edit) { edit->insert(*model); }));
}

bool XmlHelper::removeConfig(Models::XmlConfigModel *model)
{
    if (!model || !model->describesEntry() || !QFileInfo::exists(m_path))
        return true;
    const auto isOurs = [model](const XmlElement &entry) {
        return XmlEntryMatch::isOurs(entry, *model);
    };
    return report(m_path,
                  edit(m_path, isOurs, [model](XmlEntryEdit *edit) { edit->remove(*model); }));
}

} // namespace Quillmont::Library::Helpers
