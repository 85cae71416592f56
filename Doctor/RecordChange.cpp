#include "Doctor/RecordChange.h"

#include "Controllers/UserFiles.h"
#include "Doctor/RecordText.h"
#include "Library/Helpers/FileHelper.h"
#include "Models/FlightSimScan.h"
#include "Models/FlightSimulatorMapping.h"
#include "ViewControllers/Payload/Record.h"
#include "ViewControllers/Payload/TextFile.h"

#include <QJsonObject>

#include <algorithm>

using Quillmont::Library::Helpers::FileHelper;
using Quillmont::Utility::Controllers::recordFile;
using Quillmont::Utility::Models::FlightSimulatorMapping;

namespace Quillmont::Utility::Doctor {

RecordChange::RecordChange(const RecordText &record)
    : m_record(record)
    , m_bytes(record.bytes())
{ }

void RecordChange::update(const FlightSimulatorMapping *mapping, bool uninstalled)
{
    m_isUpdated = true;
    if (!m_record.isOurFormat()) {
        m_bytes = ViewControllers::updatedRecord(m_bytes, mapping, uninstalled);
        return;
    }
    const QVector<int> named = m_record.named(mapping->scan->name);
    const int left = named.size() - m_removed.size();
    if (m_added.isEmpty() && left > 0)
        m_removed.prepend(named.at(left - 1));
    m_added.clear();
    if (!uninstalled) {
        const auto alone
            = linesOf(QString::fromUtf8(ViewControllers::updatedRecord({}, mapping, false)));
        m_added = alone.mid(1, alone.size() - 2);
    }
}

QJsonObject RecordChange::json(const QString &place) const
{
    const bool isMissing = FileHelper::isMissing(place);
    QJsonObject object{{QStringLiteral("path"), place.isEmpty() ? recordFile() : place},
                       {QStringLiteral("change"), QStringLiteral("unchanged")}};
    if (!m_isUpdated)
        return object;
    const QString text = diff(place, isMissing);
    if (isMissing)
        object.insert(QStringLiteral("change"), QStringLiteral("made"));
    else if (!text.isEmpty())
        object.insert(QStringLiteral("change"), QStringLiteral("changed"));
    object.insert(QStringLiteral("diff"), text);
    return object;
}

QString RecordChange::diff(const QString &place, bool isMissing) const
{
    if (m_record.isOurFormat())
        return lineDiff(place, m_record.lines(), edits());
    const QString before
        = isMissing ? QString() : QLatin1String("") + ViewControllers::textOf(m_record.bytes());
    return lineDiff(place, before, QString::fromUtf8(m_bytes));
}

QVector<LineEdit> RecordChange::edits() const
{
    QVector<LineEdit> edits;
    for (const int record : m_removed)
        edits.append({m_record.begin(record), m_record.begin(record + 1), {}});
    const LineEdit comma = commaEdit();
    if (comma.begin < comma.end)
        edits.append(comma);
    std::sort(edits.begin(), edits.end(), [](const LineEdit &left, const LineEdit &right) {
        return left.begin < right.begin;
    });
    const int end = m_record.begin(m_record.count());
    edits.append({end, end, m_added});
    return edits;
}

// The last of those that stay has a comma only if another comes behind it.
LineEdit RecordChange::commaEdit() const
{
    int last = m_record.count() - 1;
    while (last >= 0 && m_removed.contains(last))
        --last;
    const bool hadComma = last < m_record.count() - 1;
    if (last < 0 || hadComma != m_added.isEmpty())
        return {0, 0, {}};
    const int line = m_record.begin(last + 1) - 1;
    QString text = m_record.lines().at(line);
    text.chop(hadComma ? 2 : 1);
    return {line, line + 1, {text + (hadComma ? QStringLiteral("\n") : QStringLiteral(",\n"))}};
}

} // namespace Quillmont::Utility::Doctor
