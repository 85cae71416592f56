#include "Library/Xml/editedXml.h"

#include "Library/Models/XmlInsertionModel.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/EntryChanges.h"
#include "Library/Xml/XmlDocument.h"

#include <algorithm>

namespace Quillmont::Library::Xml {

bool isOurs(const RootChild &child, const Models::XmlConfigModel &model)
{
    return child.name == model.element && child.hasChild(model.key, model.value);
}

namespace {

// Whether @p child already has all of @p model's values. Needed because "remove" may not match
// what "values" writes: without it every run would add another element.
bool isComplete(const RootChild &child, const Models::XmlInsertionModel &model)
{
    return child.name == model.parentName
        && std::all_of(model.values.cbegin(), model.values.cend(), [&child](const auto &value) {
               return child.hasChild(value.first, value.second);
           });
}

// Leaves exactly one element of ours. @p present are those that are ours or complete.
void insert(const Models::XmlInsertionModel &model,
            const QVector<RootChild> &present,
            EntryChanges *changes)
{
    if (present.isEmpty())
        changes->add(model);
    bool isFirst = true;
    for (const RootChild &child : present) {
        if (!isOurs(child, model))
            continue;
        if (isFirst)
            changes->update(child, model.values);
        else
            changes->remove(child);
        isFirst = false;
    }
}

void remove(const Models::XmlConfigModel &model, const RootChild &ours, EntryChanges *changes)
{
    if (model.deleteParent) {
        changes->remove(ours);
        return;
    }
    for (const XmlElement &child : ours.children) {
        if (child.matches(model.key, model.value))
            changes->remove(child);
    }
}

} // namespace

QByteArray
withEntry(const QByteArray &bytes, const Models::XmlInsertionModel &model, QString *problem)
{
    const Text::XmlSource source(bytes);
    const XmlDocument document(source.text(), [&model](const RootChild &child) {
        return isOurs(child, model) || isComplete(child, model);
    });
    EntryChanges changes(source, document);
    if (document.problem().isEmpty())
        insert(model, document.wanted(), &changes);
    return changes.edited(problem);
}

QByteArray
withoutEntry(const QByteArray &bytes, const Models::XmlConfigModel &model, QString *problem)
{
    const Text::XmlSource source(bytes);
    const XmlDocument document(source.text(),
                               [&model](const RootChild &child) { return isOurs(child, model); });
    EntryChanges changes(source, document);
    for (const RootChild &ours : document.wanted())
        remove(model, ours, &changes);
    return changes.edited(problem);
}

} // namespace Quillmont::Library::Xml
