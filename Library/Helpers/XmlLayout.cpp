#include "Library/Helpers/XmlLayout.h"

#include "Library/Helpers/XmlBlank.h"
#include "Library/Helpers/XmlDocument.h"

#include <algorithm>

namespace Quillmont::Library::Helpers {

namespace {

QString rootIndent(const XmlDocument &document)
{
    const int begin = document.root().begin;
    return XmlBlank::beginsLine(document.text(), begin)
        ? XmlBlank::indent(XmlBlank::lineBefore(document.text(), begin))
        : QString();
}

/// A line that is indented by one step more than the root's.
QString lineBelowRoot(const XmlDocument &document)
{
    return XmlBlank::lineEndBefore(document.text(), document.root().contentEnd)
        + rootIndent(document) + QStringLiteral("    ");
}

QString entryLine(const XmlDocument &document)
{
    const QString &text = document.text();
    const XmlElement &root = document.root();
    const XmlElement &last = document.last();
    if (last.hasPlace && XmlBlank::beginsLine(text, last.begin))
        return XmlBlank::lineBefore(text, last.begin);

    const int length = root.contentEnd - root.contentBegin;
    if (!XmlBlank::hasLineEnd(text.midRef(root.contentBegin, length)))
        return last.hasPlace ? XmlBlank::lineBefore(text, last.begin) : QString();

    const int first = XmlBlank::end(text, root.contentBegin);
    return first < root.contentEnd && XmlBlank::beginsLine(text, first)
        ? XmlBlank::lineBefore(text, first)
        : lineBelowRoot(document);
}

} // namespace

XmlLayout::XmlLayout(const XmlDocument &document)
    : m_beforeEntry(entryLine(document))
{
    if (document.lastParent().hasPlace)
        copyChildren(document);
    else if (XmlBlank::hasLineEnd(QStringRef(&m_beforeEntry)))
        indentChildren(document);
}

void XmlLayout::copyChildren(const XmlDocument &document)
{
    const QString &text = document.text();
    const XmlElement &parent = document.lastParent();
    const auto &children = parent.children;
    auto child = std::find_if(children.cbegin(), children.cend(), [&text](const XmlElement &one) {
        return one.hasPlace && XmlBlank::beginsLine(text, one.begin);
    });
    if (child == children.cend())
        child = children.cbegin();
    if (child->hasPlace)
        m_beforeChild = XmlBlank::lineBefore(text, child->begin);
    m_beforeEnd = XmlBlank::lineBefore(text, parent.contentEnd);
}

void XmlLayout::indentChildren(const XmlDocument &document)
{
    const QString indent = XmlBlank::indent(m_beforeEntry);
    const QString outer = rootIndent(document);
    m_beforeChild = m_beforeEntry + (indent.startsWith(outer) ? indent.mid(outer.size()) : indent);
    m_beforeEnd = m_beforeEntry;
}

} // namespace Quillmont::Library::Helpers
