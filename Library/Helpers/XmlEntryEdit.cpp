#include "Library/Helpers/XmlEntryEdit.h"

#include "Library/Helpers/XmlBlank.h"
#include "Library/Helpers/XmlDocument.h"
#include "Library/Helpers/XmlEntryMatch.h"
#include "Library/Helpers/XmlLayout.h"
#include "Library/Helpers/XmlMarkup.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Library/Text/XmlSource.h"

#include <algorithm>
#include <iterator>

namespace Quillmont::Library::Helpers {

XmlEntryEdit::XmlEntryEdit(const Text::XmlSource &source, const XmlDocument &document)
    : m_source(source)
    , m_document(document)
{ }

void XmlEntryEdit::insert(const Models::XmlInsertionModel &model)
{
    const QVector<XmlEntry> &entries = m_document.entries();
    QVector<XmlEntry> ours;
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
    for (const XmlEntry &entry : m_document.entries()) {
        if (model.deleteParent) {
            removeElement(entry);
            continue;
        }
        for (const XmlElement &child : entry.children) {
            if (XmlEntryMatch::isKey(child, model))
                removeElement(child);
        }
    }
}

void XmlEntryEdit::add(const Models::XmlInsertionModel &model)
{
    const XmlLayout layout(m_document);
    const QString tags = newElement(model.parentName, {});
    const int content = tags.indexOf(u'>') + 1;
    QString entry = layout.beforeEntry() + tags.left(content);
    for (const auto &[name, text] : model.values)
        entry += layout.beforeChild() + newElement(name, text);
    entry += layout.beforeEnd() + tags.mid(content);

    const XmlElement &root = m_document.root();
    if (root.isSelfClosed()) {
        open(root, entry);
    } else {
        const int place = XmlBlank::begin(m_document.text(), root.contentEnd);
        m_splices.append({place, place, entry});
    }
}

void XmlEntryEdit::update(const XmlEntry &entry, const Models::XmlValues &values)
{
    // A new child goes behind the one that it follows in the model, on a line like that one's.
    int place = entry.contentBegin;
    QString line;
    for (auto child = entry.children.crbegin(); child != entry.children.crend(); ++child) {
        if (child->hasPlace)
            line = XmlBlank::lineBefore(m_document.text(), child->begin);
    }

    const QVector<int> children = XmlEntryMatch::assigned(values, entry.children);
    for (int i = 0; i < values.size(); ++i) {
        const auto &[name, text] = values.at(i);
        if (children.at(i) < 0) {
            m_splices.append({place, place, line + newElement(name, text)});
            continue;
        }
        const XmlElement &child = entry.children.at(children.at(i));
        if (!child.says(text))
            replaceText(child, text);
        if (child.hasPlace) {
            place = child.end;
            line = XmlBlank::lineBefore(m_document.text(), child.begin);
        }
    }

    if (!entry.hasPlace && !m_splices.isEmpty())
        refuse(QStringLiteral("The entry to change comes out of an entity."));
    std::stable_sort(m_splices.begin(), m_splices.end(), [](const auto &one, const auto &other) {
        return one.begin < other.begin;
    });
}

void XmlEntryEdit::replaceText(const XmlElement &child, const QString &text)
{
    const QString escaped = XmlMarkup::escaped(text);
    if (escaped.isNull())
        refuse(QStringLiteral("A value is no text that XML can hold."));
    else if (!child.hasPlace)
        refuse(QStringLiteral("The element to change comes out of an entity."));
    else if (child.isSelfClosed())
        open(child, escaped);
    else
        m_splices.append({child.contentBegin, child.contentEnd, escaped});
}

// Makes two tags with @p content between them out of one.
void XmlEntryEdit::open(const XmlElement &element, const QString &content)
{
    if (!m_source.canWrite(element.name))
        refuse(QStringLiteral("The file's encoding cannot hold an end tag."));
    const QString endTag = QStringLiteral("</%1>").arg(element.name);
    m_splices.append({element.end - 2, element.end, u'>' + content + endTag});
}

void XmlEntryEdit::removeElement(const XmlElement &element)
{
    if (element.hasPlace)
        m_splices.append(
            {XmlBlank::begin(m_document.text(), element.begin), element.end, QString()});
    else
        refuse(QStringLiteral("The element to remove comes out of an entity."));
}

QString XmlEntryEdit::newElement(const QString &name, const QString &text)
{
    QString markup = XmlMarkup::element(name, text);
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
