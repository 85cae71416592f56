#ifndef MODELS_FILEOPERATION_H
#define MODELS_FILEOPERATION_H

#include <QObject>
#include <QString>

class QJsonObject;

namespace Quillmont::Utility::Models {

/// One file that uninstalling deletes beside the plugin's own.
class FileOperation : public QObject
{
    Q_OBJECT

public:
    /// Reads "root" and "path"; a missing or wrongly typed value reads as empty.
    FileOperation(QObject *parent, const QJsonObject &json);

    QString root; ///< "-1" for the simulator's folder, else the number of a standard location.
    QString path; ///< The file, relative to that base, as written in the catalogue.
};

} // namespace Quillmont::Utility::Models

#endif
