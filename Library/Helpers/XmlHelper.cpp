#include "Library/Helpers/XmlHelper.h"

#include "Library/Files/FileWriter.h"
#include "Library/Files/LibraryLog.h"
#include "Library/Helpers/FileHelper.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Library/Xml/editedXml.h"

#include <functional>

using Quillmont::Library::Files::FileWriter;
using Quillmont::Library::Files::xmlLog;

namespace Quillmont::Library::Helpers {

namespace {

using Edit = std::function<QByteArray(const QByteArray &, QString *)>;

bool change(const QString &path, const Edit &edit)
{
    QString problem;
    const QByteArray before = FileHelper::read(path, Xml::maxFileSize, &problem);
    const QByteArray after = problem.isEmpty() ? edit(before, &problem) : before;
    if (after != before)
        FileWriter::write(path, after, &problem);
    if (!problem.isEmpty()) {
        qCDebug(xmlLog,
                "configuration file not changed: %s, %s",
                qUtf8Printable(path),
                qUtf8Printable(problem));
    }
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
    return change(m_path, [model](const QByteArray &bytes, QString *problem) {
        return Xml::withEntry(bytes, *model, problem);
    });
}

bool XmlHelper::removeConfig(Models::XmlConfigModel *model)
{
    if (!model || !model->describesEntry() || FileHelper::isMissing(m_path))
        return true;
    return change(m_path, [model](const QByteArray &bytes, QString *problem) {
        return Xml::withoutEntry(bytes, *model, problem);
    });
}

} // namespace Quillmont::Library::Helpers
