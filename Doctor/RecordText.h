#ifndef DOCTOR_RECORDTEXT_H
#define DOCTOR_RECORDTEXT_H

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <QVector>

namespace Quillmont::Utility::Doctor {

/// The installation record as it is, read once for many plans.
class RecordText
{
public:
    /// Reads the record.
    RecordText();

    /// Why it cannot be read; empty if it can, or is missing.
    const QString &problem() const { return m_problem; }

    const QByteArray &bytes() const { return m_bytes; }

    /// Whether it is formatted as the program writes it, so that changing one record leaves the
    /// lines of the others alone. Only then it has lines and records here.
    bool isOurFormat() const { return !m_begins.isEmpty(); }

    const QStringList &lines() const { return m_lines; }

    int count() const { return m_begins.size() - 1; }

    /// The first line of a record; for count() that of the closing bracket.
    int begin(int record) const { return m_begins.at(record); }

    /// The indexes of the records with that name, ascending.
    QVector<int> named(const QString &name) const { return m_named.value(name); }

private:
    void findRecords();

    QByteArray m_bytes;
    QString m_problem;
    QStringList m_lines;
    QVector<int> m_begins;
    QHash<QString, QVector<int>> m_named;
};

} // namespace Quillmont::Utility::Doctor

#endif
