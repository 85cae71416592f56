#include "Library/Xml/EntryIndent.h"

#include "Library/Xml/XmlDocument.h"
#include "Library/Xml/XmlSpace.h"

namespace Quillmont::Library::Xml {

namespace {

using Outline = XmlDocument::Outline;

// The last child of the root that begins a line, else the last of all; null if there is none. With
// @p isParent, only children that have children themselves count.
const Outline *neighbour(const XmlDocument &document, bool isParent)
{
    const Outline *result = nullptr;
    const QVector<Outline> &all = document.outlines();
    for (auto one = all.crbegin(); one != all.crend(); ++one) {
        const int begin = document.tagBegin(one->startTagEnd);
        if (begin < 0 || (isParent && one->firstChildTagEnd < 0))
            continue;
        if (XmlSpace::beginsLine(document.text(), begin))
            return &*one;
        if (!result)
            result = &*one;
    }
    return result;
}

// The white space before the tag that ends at @p end.
QString lineBeforeTag(const XmlDocument &document, int end)
{
    const int begin = document.tagBegin(end);
    return begin < 0 ? QString() : XmlSpace::lineBefore(document.text(), begin);
}

QString rootIndent(const XmlDocument &document)
{
    const int begin = document.root().begin;
    return XmlSpace::beginsLine(document.text(), begin)
        ? XmlSpace::indent(XmlSpace::lineBefore(document.text(), begin))
        : QString();
}

// A line break and an indent one step deeper than the root's.
QString lineBelowRoot(const XmlDocument &document)
{
    return XmlSpace::lineEndBefore(document.text(), document.root().contentEnd)
        + rootIndent(document) + QStringLiteral("    ");
}

QString entryLine(const XmlDocument &document)
{
    const Outline *last = neighbour(document, false);
    QString line = last ? lineBeforeTag(document, last->startTagEnd) : QString();
    if (XmlSpace::hasLineEnd(QStringRef(&line)))
        return line;

    const QString &text = document.text();
    const XmlElement &root = document.root();
    const int length = root.contentEnd - root.contentBegin;
    if (!XmlSpace::hasLineEnd(text.midRef(root.contentBegin, length)))
        return line;

    const int first = XmlSpace::end(text, root.contentBegin);
    return first < root.contentEnd && XmlSpace::beginsLine(text, first)
        ? XmlSpace::lineBefore(text, first)
        : lineBelowRoot(document);
}

} // namespace

EntryIndent::EntryIndent(const XmlDocument &document)
    : m_beforeEntry(entryLine(document))
{
    if (const Outline *parent = neighbour(document, true)) {
        m_beforeChild = lineBeforeTag(document, parent->firstChildTagEnd);
        m_beforeEnd = lineBeforeTag(document, parent->end);
    } else if (XmlSpace::hasLineEnd(QStringRef(&m_beforeEntry))) {
        const QString indent = XmlSpace::indent(m_beforeEntry);
        const QString outer = rootIndent(document);
        const bool isDeeper = indent.startsWith(outer);
        m_beforeChild = m_beforeEntry + (isDeeper ? indent.mid(outer.size()) : indent);
        m_beforeEnd = m_beforeEntry;
    }
}

} // namespace Quillmont::Library::Xml
