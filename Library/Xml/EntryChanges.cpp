#include "Library/Xml/EntryChanges.h"

#include "Library/Models/XmlInsertionModel.h"
#include "Library/Xml/EntryIndent.h"
#include "Library/Xml/XmlMarkup.h"
#include "Library/Xml/XmlSpace.h"

#include <algorithm>

namespace Quillmont::Library::Xml {

namespace {

// For each of @p values the index of the child that is to hold it, or -1. A child that already has
// the text is preferred.
QVector<int> holders(const Models::XmlValues &values, const QVector<XmlElement> &children)
{
    QVector<int> result(values.size(), -1);
    for (const bool exactly : {true, false}) {
        for (int i = 0; i < values.size(); ++i) {
            const auto &[name, text] = values.at(i);
            for (int j = 0; j < children.size() && result.at(i) < 0; ++j) {
                const XmlElement &child = children.at(j);
                if (child.name == name && (!exactly || child.hasText(text)) && !result.contains(j))
                    result[i] = j;
            }
        }
    }
    return result;
}

const XmlElement *firstWithPosition(const QVector<XmlElement> &children)
{
    const auto first = std::find_if(
        children.cbegin(), children.cend(), [](const auto &child) { return child.hasPosition; });
    return first == children.cend() ? nullptr : &*first;
}

QString problemOf(const QByteArray &bytes)
{
    const Text::XmlSource source(bytes);
    return XmlDocument(source.text(), [](const RootChild &) { return false; }).problem();
}

} // namespace

EntryChanges::EntryChanges(const Text::XmlSource &source, const XmlDocument &document)
    : m_source(source)
    , m_document(document)
    , m_problem(document.problem())
{ }

void EntryChanges::add(const Models::XmlInsertionModel &model)
{
    const EntryIndent indent(m_document);
    const QString tags = newElement(model.parentName, {});
    const int content = tags.indexOf(u'>') + 1;
    QString entry = indent.beforeEntry() + tags.left(content);
    for (const auto &[name, text] : model.values)
        entry += indent.beforeChild() + newElement(name, text);
    entry += indent.beforeEnd() + tags.mid(content);

    const XmlElement &root = m_document.root();
    if (root.isSelfClosed()) {
        open(root, entry);
    } else {
        const int place = XmlSpace::begin(m_document.text(), root.contentEnd);
        m_splices.append({place, place, entry});
    }
}

void EntryChanges::update(const RootChild &entry, const Models::XmlValues &values)
{
    const QVector<int> children = holders(values, entry.children);
    const XmlElement *previous = nullptr;
    for (int i = 0; i < values.size(); ++i) {
        const auto &[name, text] = values.at(i);
        if (children.at(i) < 0) {
            insertAfter(previous, entry, newElement(name, text));
            continue;
        }
        const XmlElement &child = entry.children.at(children.at(i));
        if (!child.hasText(text))
            replaceText(child, text);
        if (child.hasPosition)
            previous = &child;
    }

    if (!entry.hasPosition && !m_splices.isEmpty())
        refuse(QStringLiteral("The entry to change comes out of an entity."));
    std::stable_sort(m_splices.begin(), m_splices.end(), [](const auto &one, const auto &other) {
        return one.begin < other.begin;
    });
}

void EntryChanges::remove(const XmlElement &element)
{
    const int begin = XmlSpace::begin(m_document.text(), element.begin);
    if (element.hasPosition)
        m_splices.append({begin, element.end, QString()});
    else
        refuse(QStringLiteral("The element to remove comes out of an entity."));
}

QByteArray EntryChanges::edited(QString *problem) const
{
    *problem = m_problem;
    if (!m_problem.isEmpty() || m_splices.isEmpty())
        return m_source.bytes();

    const QByteArray result = m_source.spliced(m_splices);
    if (result.isNull())
        *problem
            = m_document.problemAt(m_splices.constFirst().begin,
                                   QStringLiteral("Undecodable bytes would be read otherwise."));
    else if (m_source.text().contains(u']'))
        // Removing an element may have joined its neighbours into "]]>".
        *problem = problemOf(result);
    return problem->isEmpty() ? result : m_source.bytes();
}

// After @p neighbour, on a line like its own; without one, as the first child of @p entry.
void EntryChanges::insertAfter(const XmlElement *neighbour,
                               const RootChild &entry,
                               const QString &markup)
{
    const int place = neighbour ? neighbour->end : entry.contentBegin;
    const XmlElement *other = neighbour ? neighbour : firstWithPosition(entry.children);
    const QString line = other ? XmlSpace::lineBefore(m_document.text(), other->begin) : QString();
    m_splices.append({place, place, line + markup});
}

void EntryChanges::replaceText(const XmlElement &child, const QString &text)
{
    const QString escaped = XmlMarkup::escaped(text);
    if (escaped.isNull())
        refuse(QStringLiteral("A value is no text that XML can hold."));
    else if (!child.hasPosition)
        refuse(QStringLiteral("The element to change comes out of an entity."));
    else if (child.isSelfClosed())
        open(child, escaped);
    else
        m_splices.append({child.contentBegin, child.contentEnd, escaped});
}

// Replaces a single tag by a start tag, @p content and an end tag.
void EntryChanges::open(const XmlElement &element, const QString &content)
{
    if (!m_source.canWrite(element.name))
        refuse(QStringLiteral("The file's encoding cannot hold an end tag."));
    const QString endTag = QStringLiteral("</%1>").arg(element.name);
    m_splices.append({element.end - 2, element.end, u'>' + content + endTag});
}

QString EntryChanges::newElement(const QString &name, const QString &text)
{
    QString markup = XmlMarkup::element(name, text);
    if (markup.isNull())
        refuse(QStringLiteral("A name or a value is none that XML can hold."));
    else if (!m_source.canWrite(name))
        refuse(QStringLiteral("The file's encoding cannot hold a name."));
    return markup;
}

void EntryChanges::refuse(const QString &reason)
{
    if (m_problem.isEmpty())
        m_problem = m_document.problemAt(m_document.root().begin, reason);
}

} // namespace Quillmont::Library::Xml
