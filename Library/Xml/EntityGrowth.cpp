#include "Library/Xml/EntityGrowth.h"

#include <QPair>
#include <QVector>

#include <algorithm>

namespace Quillmont::Library::Xml {

namespace {

// If a comment, CDATA section or processing instruction begins at @p place, its end; else the next
// place. References in these are plain text.
int afterPlainPart(const QStringRef &content, int place)
{
    static const QVector<QPair<QString, QString>> parts{
        {QStringLiteral("<!--"), QStringLiteral("-->")},
        {QStringLiteral("<![CDATA["), QStringLiteral("]]>")},
        {QStringLiteral("<?"), QStringLiteral("?>")}};
    for (const auto &part : parts) {
        if (content.mid(place).startsWith(part.first)) {
            const int end = content.indexOf(part.second, place + part.first.size());
            return end < 0 ? content.size() : end;
        }
    }
    return place + 1;
}

QStringRef nameAt(const QStringRef &content, int begin)
{
    const auto *const first = content.cbegin() + begin;
    const auto *const end = std::find_if(first, content.cend(), [](QChar character) {
        return character == u';' || character == u'&' || character == u'<';
    });
    return content.mid(begin, static_cast<int>(end - first));
}

} // namespace

EntityGrowth::EntityGrowth(const QXmlStreamEntityDeclarations &declarations, int max)
    : m_tooMuch(max + 1)
{
    // Of two entities with one name the longer is assumed: the first one counts, unless it is a
    // parameter entity, which the reader does not tell apart.
    for (const auto &declaration : declarations) {
        QString &value = m_values[declaration.name().toString()];
        if (value.size() < declaration.value().size())
            value = declaration.value().toString();
    }
}

// NOLINTNEXTLINE(misc-no-recursion): ends at the depth that ofEntity() sets.
qint64 EntityGrowth::of(const QStringRef &content)
{
    qint64 growth = 0;
    for (int i = 0; i < content.size();) {
        if (content.at(i) == u'&') {
            const QStringRef name = nameAt(content, i + 1);
            growth += ofEntity(name.toString());
            i += 1 + name.size();
        } else {
            i = content.at(i) == u'<' ? afterPlainPart(content, i) : i + 1;
        }
    }
    return growth;
}

// NOLINTNEXTLINE(misc-no-recursion)
int EntityGrowth::ofEntity(const QString &name)
{
    // Recursive entities, or ones nested deeper than anybody writes them, are refused.
    constexpr int maxDepth = 100;
    if (m_depth == maxDepth)
        return m_tooMuch;
    if (m_values.contains(name)) {
        const QString value = m_values.take(name);
        m_growths.insert(name, m_tooMuch);
        ++m_depth;
        const qint64 growth = value.size() + of(QStringRef(&value));
        --m_depth;
        m_growths.insert(name, static_cast<int>(std::min<qint64>(growth, m_tooMuch)));
    }
    return m_growths.value(name);
}

} // namespace Quillmont::Library::Xml
