#include "Library/Helpers/XmlEntryMatch.h"

#include "Library/Models/XmlInsertionModel.h"
#include "Library/Xml/XmlElement.h"

#include <algorithm>

namespace Quillmont::Library::Helpers {

namespace {

bool holds(const Xml::XmlElement &child, const QString &name, const QString &text)
{
    return child.name == name && child.hasText(text);
}

} // namespace

bool XmlEntryMatch::isKey(const Xml::XmlElement &child, const Models::XmlConfigModel &model)
{
    return holds(child, model.key, model.value);
}

bool XmlEntryMatch::isOurs(const Xml::RootChild &entry, const Models::XmlConfigModel &model)
{
    return entry.name == model.element
        && std::any_of(entry.children.cbegin(), entry.children.cend(), [&](const auto &child) {
               return isKey(child, model);
           });
}

bool XmlEntryMatch::isComplete(const Xml::RootChild &entry, const Models::XmlInsertionModel &model)
{
    const auto stands = [&entry](const QPair<QString, QString> &value) {
        return std::any_of(entry.children.cbegin(), entry.children.cend(), [&](const auto &child) {
            return holds(child, value.first, value.second);
        });
    };
    return entry.name == model.parentName
        && std::all_of(model.values.cbegin(), model.values.cend(), stands);
}

QVector<int> XmlEntryMatch::assigned(const Models::XmlValues &values,
                                     const QVector<Xml::XmlElement> &children)
{
    QVector<int> result(values.size(), -1);
    for (const bool exactly : {true, false}) {
        for (int i = 0; i < values.size(); ++i) {
            const auto &[name, text] = values.at(i);
            for (int j = 0; j < children.size() && result.at(i) < 0; ++j) {
                const Xml::XmlElement &child = children.at(j);
                if (child.name == name && (!exactly || child.hasText(text)) && !result.contains(j))
                    result[i] = j;
            }
        }
    }
    return result;
}

} // namespace Quillmont::Library::Helpers
