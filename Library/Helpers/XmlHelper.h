#ifndef LIBRARY_HELPERS_XMLHELPER_H
#define LIBRARY_HELPERS_XMLHELPER_H

#include <QObject>
#include <QString>

namespace Quillmont::Library::Models {
class XmlConfigModel;
class XmlInsertionModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Library::Helpers {

/// Adds our add-on element to a simulator's XML configuration file, or removes it, and leaves every
/// other byte of the file as it is.
class XmlHelper : public QObject
{
    Q_OBJECT

public:
    /// Works on the file at @p path, which each operation reads again.
    XmlHelper(QObject *parent, const QString &path);

    /// Adds our element, or updates it, as @p model describes it. True: the file now has it. False:
    /// the file could not be changed and is untouched; the debug log says why. A missing file is a
    /// failure. @p model stays the caller's.
    [[nodiscard]] bool insertValues(Models::XmlInsertionModel *model);

    /// Removes what @p model describes. True: the file does not have it (any more), or there is no
    /// file. False: it could not be removed and the file is untouched; the debug log says why.
    /// @p model stays the caller's.
    [[nodiscard]] bool removeConfig(Models::XmlConfigModel *model);

private:
    QString m_path;
};

} // namespace Quillmont::Library::Helpers

#endif
