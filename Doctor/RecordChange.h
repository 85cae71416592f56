#ifndef DOCTOR_RECORDCHANGE_H
#define DOCTOR_RECORDCHANGE_H

#include "Doctor/LineDiff.h"

#include <QByteArray>
#include <QStringList>
#include <QVector>

class QJsonObject;

namespace Quillmont::Utility::Models {
class FlightSimulatorMapping;
} // namespace Quillmont::Utility::Models

namespace Quillmont::Utility::Doctor {

class RecordText;

/// The change of the installation record by an installation or removal. Its cost does not depend on
/// the size of a record that the program has written.
class RecordChange
{
public:
    /// @p record has to outlive this.
    explicit RecordChange(const RecordText &record);

    /// Updates the record as it is done after an installation or removal.
    void update(const Models::FlightSimulatorMapping *mapping, bool uninstalled);

    /// The record's "path", its "change" and the "diff". The record is at @p place, where its path
    /// leads; it cannot be changed if that is empty.
    QJsonObject json(const QString &place) const;

private:
    QString diff(const QString &place, bool isMissing) const;
    QVector<LineEdit> edits() const;
    LineEdit commaEdit() const;

    const RecordText &m_record;
    bool m_isUpdated = false;
    QByteArray m_bytes; ///< The new record, unless the old one is formatted as ours.
    QVector<int> m_removed;
    QStringList m_added; ///< The lines of a record at the end.
};

} // namespace Quillmont::Utility::Doctor

#endif
