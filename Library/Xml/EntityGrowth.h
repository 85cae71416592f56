#ifndef LIBRARY_XML_ENTITYGROWTH_H
#define LIBRARY_XML_ENTITYGROWTH_H

#include <QHash>
#include <QXmlStreamReader>

namespace Quillmont::Library::Xml {

/// How many characters the entities of a document add to its text.
class EntityGrowth
{
public:
    /// Any growth beyond @p max characters counts as the same.
    EntityGrowth(const QXmlStreamEntityDeclarations &declarations, int max);

    /// How many characters the references in @p content expand to, which is the document after its
    /// declarations. Character references and predefined entities ("&amp;") add nothing.
    qint64 of(const QStringRef &content);

private:
    int ofEntity(const QString &name);

    const int m_tooMuch;
    int m_depth = 0;
    QHash<QString, QString> m_values;
    QHash<QString, int> m_growths;
};

} // namespace Quillmont::Library::Xml

#endif
