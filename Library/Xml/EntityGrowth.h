#ifndef LIBRARY_XML_ENTITYGROWTH_H
#define LIBRARY_XML_ENTITYGROWTH_H

#include <QHash>
#include <QXmlStreamReader>

namespace Quillmont::Library::Xml {

/// What the entities that a document declares add to its text.
class EntityGrowth
{
public:
    /// Growth beyond @p most characters is not told apart.
    EntityGrowth(const QXmlStreamEntityDeclarations &declarations, int most);

    /// How many characters come out of the references in @p content, the part of a document behind
    /// its declarations. References to characters, and to what every document has ("&amp;"), add
    /// nothing.
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
