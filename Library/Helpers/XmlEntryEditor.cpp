#include "Library/Helpers/XmlEntryEditor.h"

#include "Library/Helpers/XmlEntryEdit.h"
#include "Library/Helpers/XmlEntryMatch.h"
#include "Library/Models/XmlInsertionModel.h"
#include "Library/Text/XmlSource.h"
#include "Library/Xml/XmlDocument.h"

#include <functional>

namespace Quillmont::Library::Helpers {

namespace {

using Change = std::function<void(XmlEntryEdit *)>;

// What stood at both sides of an element may have become the end of a CDATA section.
QString problemAfterwards(const QByteArray &bytes)
{
    const Text::XmlSource source(bytes);
    return Xml::XmlDocument(source.text(), [](const Xml::RootChild &) { return false; }).problem();
}

QByteArray changed(const QByteArray &bytes,
                   const Xml::XmlDocument::Filter &isOurs,
                   const Change &change,
                   QString *problem)
{
    const Text::XmlSource source(bytes);
    const Xml::XmlDocument document(source.text(), isOurs);
    *problem = document.problem();
    if (!problem->isEmpty())
        return bytes;

    XmlEntryEdit edit(source, document);
    change(&edit);
    *problem = edit.problem();
    if (!problem->isEmpty() || edit.splices().isEmpty())
        return bytes;

    const QByteArray result = source.spliced(edit.splices());
    if (result.isNull())
        *problem = document.problemAt(edit.splices().constFirst().begin,
                                      QStringLiteral("Undecodable bytes would be read otherwise."));
    else if (source.text().contains(u']'))
        *problem = problemAfterwards(result);
    return problem->isEmpty() ? result : bytes;
}

} // namespace

QByteArray XmlEntryEditor::inserted(const QByteArray &bytes,
                                    const Models::XmlInsertionModel &model,
                                    QString *problem)
{
    const auto isOurs = [&model](const Xml::RootChild &entry) {
        return XmlEntryMatch::isOurs(entry, model) || XmlEntryMatch::isComplete(entry, model);
    };
    const auto insert = [&model](XmlEntryEdit *edit) {
        edit->insert(model);
    };
    return changed(bytes, isOurs, insert, problem);
}

QByteArray XmlEntryEditor::removed(const QByteArray &bytes,
                                   const Models::XmlConfigModel &model,
                                   QString *problem)
{
    const auto isOurs = [&model](const Xml::RootChild &entry) {
        return XmlEntryMatch::isOurs(entry, model);
    };
    const auto remove = [&model](XmlEntryEdit *edit) {
        edit->remove(model);
    };
    return changed(bytes, isOurs, remove, problem);
}

} // namespace Quillmont::Library::Helpers
