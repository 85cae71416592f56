#ifndef DOCTOR_JSONPLACES_H
#define DOCTOR_JSONPLACES_H

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVector>

namespace Quillmont::Utility::Doctor {

/// The positions of keys and elements in a JSON text, which QJsonDocument does not report.
class JsonPlaces
{
public:
    struct Place
    {
        int line = 1;
        int column = 1;
    };

    /// Reads @p text. If it is not JSON, nothing in it has a place.
    explicit JsonPlaces(const QByteArray &text);

    /// The place of the key or array element with this path, such as "0/files/1/source".
    Place of(const QString &path) const { return placeAt(m_offsets.value(path)); }

    /// The place of a byte.
    Place placeAt(int offset) const;

    /// The paths and offsets of keys that occur twice in their object.
    const QVector<QPair<QString, int>> &repeated() const { return m_repeated; }

private:
    void readValue(const QString &path);
    void readMembers(const QString &path);
    void readElements(const QString &path);
    QString readString();
    void skipSpace();

    const QByteArray m_text;
    int m_place = 0;
    QHash<QString, int> m_offsets;
    QVector<QPair<QString, int>> m_repeated;
};

} // namespace Quillmont::Utility::Doctor

#endif
