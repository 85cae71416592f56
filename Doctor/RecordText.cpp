#include "Doctor/RecordText.h"

#include "Controllers/UserFiles.h"
#include "Doctor/LineDiff.h"
#include "Library/Helpers/FileHelper.h"
#include "ViewControllers/Payload/Record.h"
#include "ViewControllers/Payload/TextFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::recordFile;

namespace Quillmont::Utility::Doctor {

RecordText::RecordText()
{
    m_bytes = ViewControllers::contentOf(recordFile(), &m_problem);
    if (FileHelper::isMissing(recordFile()))
        m_problem.clear();
    const QJsonArray records = ViewControllers::recordsIn(m_bytes);
    if (m_bytes != QJsonDocument(records).toJson())
        return;
    m_lines = linesOf(QString::fromUtf8(m_bytes));
    findRecords();
    for (int i = 0; i < records.size(); ++i) {
        const QJsonValue name = records.at(i).toObject().value(QLatin1String("name"));
        if (name.isString())
            m_named[name.toString()].append(i);
    }
}

// Between the brackets. What is in a record is indented further than its own braces.
void RecordText::findRecords()
{
    constexpr int indent = 4;
    for (int i = 1; i < m_lines.size() - 1; ++i) {
        const QChar first = m_lines.at(i).at(indent);
        if (first != u' ' && first != u'}' && first != u']')
            m_begins.append(i);
    }
    m_begins.append(m_lines.size() - 1);
}

} // namespace Quillmont::Utility::Doctor
