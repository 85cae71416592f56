#ifndef DOCTOR_CATALOGUECHECK_H
#define DOCTOR_CATALOGUECHECK_H

#include "Doctor/JsonPlaces.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QMultiMap>
#include <QPair>
#include <QSet>

namespace Quillmont::Utility::Doctor {

class Page;

/// Reports mistakes in a catalogue, and their effect: the program reads leniently, without a
/// warning.
class CatalogueCheck
{
    Q_DECLARE_TR_FUNCTIONS(Quillmont::Utility::Doctor::CatalogueCheck)

public:
    /// @p payload is the folder of the plugin's files, with a trailing separator.
    CatalogueCheck(const QByteArray &text, const QString &payload);

    /// "fine", and "findings" with "line", "column", "key" and "text" each, in text order.
    QJsonObject json() const;

    /// Writes @p json for a person, as FILE:LINE:COLUMN lines.
    static void write(const QJsonObject &json, const QString &file, Page *page);

private:
    void checkKeys(const QJsonObject &object, const QString &path, const QString &kind);
    void checkMember(const QJsonValue &value, const QString &path, const QString &type);
    void checkEntry(const QJsonObject &entry, const QString &path);
    void checkName(const QString &name, const QString &path);
    void checkFiles(const QJsonArray &files, const QString &path);
    void checkFile(const QJsonObject &file, const QString &path, QSet<QString> *destinations);
    void checkConfiguration(const QJsonObject &entry, const QString &path);
    void checkRemoval(const QJsonObject &config, const QString &path);
    void say(const QString &path, const QString &text);
    void sayAt(JsonPlaces::Place place, const QString &path, const QString &text);

    const JsonPlaces m_places;
    const QString m_payload;
    /// By the key of the chosen folder: the last entry's name so far, and its path.
    QMap<QString, QPair<QString, QString>> m_names;
    QMultiMap<QPair<int, int>, QJsonObject> m_findings;
};

} // namespace Quillmont::Utility::Doctor

#endif
