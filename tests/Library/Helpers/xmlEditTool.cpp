#include "Library/Helpers/XmlHelper.h"
#include "Library/Models/XmlInsertionModel.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

#include <unistd.h>

// Adds an entry to a file, or removes it: the process that a test kills at each of its system
// calls. Arguments: "insert" or "remove", and the file.

using Quillmont::Library::Helpers::XmlHelper;
using Quillmont::Library::Models::XmlInsertionModel;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    XmlInsertionModel model(
        nullptr,
        {{QStringLiteral("parent"), QStringLiteral("Addon")},
         {QStringLiteral("values"),
          QJsonArray{QJsonObject{{QStringLiteral("key"), QStringLiteral("Name")},
                                 {QStringLiteral("value"), QStringLiteral("Tide")}}}}});
    XmlHelper helper(nullptr, arguments.value(2));

    // Nothing else here makes this call, so it marks the begin of the work for the tracer.
    [[maybe_unused]] const pid_t begin = getpgrp();
    const bool isInsertion = arguments.value(1) == QLatin1String("insert");
    const bool isDone = isInsertion ? helper.insertValues(&model) : helper.removeConfig(&model);
    [[maybe_unused]] const pid_t end = getpgrp();
    return isDone ? 0 : 1;
}
