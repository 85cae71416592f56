#include "Library/Helpers/XmlEntryEdit.h"

#include "Library/Helpers/XmlEntryMatch.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/EntryIndent.h"
#include "Library/Xml/XmlDocument.h"
#include "Library/Xml/XmlMarkup.h"
#include "Library/Xml/XmlSpace.h"

#include <algorithm>
#include <iterator>

namespace Quillmont::Library::Helpers {

XmlEntryEdit::XmlEntryEdit(const Text::XmlSource &source, const Xml::XmlDocument &document)
    : m_source(source)
    , m_document(document)
{ }

void XmlEntryEdit::insert(const Models::XmlInsertionModel &model)
{
    const QVector<Xml::RootChild> &entries = m_document.wanted();
    QVector<Xml::RootChild> ours;
    std::copy_if(entries.cbegin(),
                 entries.cend(),
                 std::back_inserter(ours),
                 [&model](const auto &entry) { return XmlEntryMatch::isOurs(entry, model); });
    if (entries.isEmpty())
        add(model);
    if (!ours.isEmpty())
        update(ours.first(), model.values);
    for (int i = 1; i < ours.size(); ++i)
        removeElement(ours.at(i));
}

void XmlEntryEdit::remove(const Models::XmlConfigModel &model)
{
    for (const Xml::RootChild &entry : m_document.wanted()) {
        if (model.deleteParent) {
            removeElement(entry);
            continue;
        }
        for (const Xml::XmlElement &child : entry.children) {
            if (XmlEntryMatch::isKey(child, model))
                removeElement(child);
        }
    }
}

void XmlEntryEdit::add(const Models::XmlInsertionModel &model)
{
    const Xml::EntryIndent layout(m_document);
    const QString tags = newElement(model.parentName, {});
    const int content = tags.indexOf(u'>') + 1;
    QString entry = layout.beforeEntry() + tags.left(content);
    for (const auto &[name, text] : model.values)
        entry += layout.beforeChild() + newElement(name, text);
    entry += layout.beforeEnd() + tags.mid(content);

    const Xml::XmlElement &root = m_document.root();
    if (root.isSelfClosed()) {
        open(root, entry);
    } else {
        const int place = Xml::XmlSpace::begin(m_document.text(), root.contentEnd);
        m_splices.append({place, place, entry});
    }
}

void XmlEntryEdit::update(const Xml::RootChild &entry, const Models::XmlValues &values)
{
    // A new child goes behind the one that it follows in the model, on a line like that one's.
    int place = entry.contentBegin;
    QString line;
    for (auto child = entry.children.crbegin(); child != entry.children.crend(); ++child) {
        if (child->hasPosition)
            line = Xml::XmlSpace::lineBefore(m_document.text(), child->begin);
    }

    const QVector<int> children = XmlEntryMatch::assigned(values, entry.children);
    for (int i = 0; i < values.size(); ++i) {
        const auto &[name, text] = values.at(i);
        if (children.at(i) < 0) {
            m_splices.append({place, place, line + newElement(name, text)});
            continue;
        }
        const Xml::XmlElement &child = entry.children.at(children.at(i));
        if (!child.hasText(text))
            replaceText(child, text);
        if (child.hasPosition) {
            place = child.end;
            line = Xml::XmlSpace::lineBefore(m_document.text(), child.begin);
        }
    }

    if (!entry.hasPosition && !m_splices.isEmpty())
        refuse(QStringLiteral("The entry to change comes out of an entity."));
    std::stable_sort(m_splices.begin(), m_splices.end(), [](const auto &one, const auto &other) {
        return one.begin < other.begin;
    });
}

void XmlEntryEdit::replaceText(const Xml::XmlElement &child, const QString &text)
{
    const QString escaped = Xml::XmlMarkup::escaped(text);
    if (escaped.isNull())
        refuse(QStringLiteral("A value is no text that XML can hold."));
    else if (!child.hasPosition)
        refuse(QStringLiteral("The element to change comes out of an entity."));
    else if (child.isSelfClosed())
        open(child, escaped);
    else
        m_splices.append({child.contentBegin, child.contentEnd, escaped});
}

// Makes two tags with @p content between them out of one.
void XmlEntryEdit::open(const Xml::XmlElement &element, const QString &content)
{
    if (!m_source.canWrite(element.name))
        refuse(QStringLiteral("The file's encoding cannot hold an end tag."));
    const QString endTag = QStringLiteral("</%1>").arg(element.name);
    m_splices.append({element.end - 2, element.end, u'>' + content + endTag});
}

void XmlEntryEdit::removeElement(const Xml::XmlElement &element)
{
    if (element.hasPosition)
        m_splices.append(
            {Xml::XmlSpace::begin(m_document.text(), element.begin), element.end, QString()});
    else
        refuse(QStringLiteral("The element to remove comes out of an entity."));
}

QString XmlEntryEdit::newElement(const QString &name, const QString &text)
{
    QString markup = Xml::XmlMarkup::element(name, text);
    if (markup.isNull())
        refuse(QStringLiteral("A name or a value is none that XML can hold."));
    else if (!m_source.canWrite(name))
        refuse(QStringLiteral("The file's encoding cannot hold a name."));
    return markup;
}

void XmlEntryEdit::refuse(const QString &reason)
{
    if (m_problem.isEmpty())
        m_problem = m_document.problemAt(m_document.root().begin, reason);
}

} // namespace Quillmont::Library::Helpers
