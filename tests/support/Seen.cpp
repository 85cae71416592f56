#include "tests/support/Seen.h"

#include <QJsonArray>
#include <QJsonObject>

namespace Tests {

static QString text(const QJsonObject &seen, const char *key)
{
    return seen.value(QLatin1String(key)).toString();
}

static QRect rectangle(const QJsonObject &seen)
{
    const QJsonArray sides = seen.value(QLatin1String("rectangle")).toArray();
    return {sides.at(0).toInt(), sides.at(1).toInt(), sides.at(2).toInt(), sides.at(3).toInt()};
}

static SeenControl control(const QJsonObject &seen, const char *key)
{
    return SeenControl(seen.value(QLatin1String(key)).toObject());
}

SeenControl::SeenControl(const QJsonObject &seen)
    : text(Tests::text(seen, "text"))
    , enabled(seen.value(QLatin1String("enabled")).toBool())
    , rectangle(Tests::rectangle(seen))
{ }

SeenRow::SeenRow(const QJsonObject &seen)
    : name(text(seen, "name"))
    , path(text(seen, "path"))
    , placeholder(text(seen, "placeholder"))
    , toolTip(text(seen, "toolTip"))
    , icon(text(seen, "icon"))
    , browse(control(seen, "browse"))
    , action(control(seen, "action"))
    , rectangle(Tests::rectangle(seen))
{ }

SeenWindow::SeenWindow(const QJsonObject &seen)
    : number(seen.value(QLatin1String("number")).toInt())
    , className(Tests::text(seen, "class"))
    , title(Tests::text(seen, "title"))
    , text(Tests::text(seen, "text"))
    , icon(Tests::text(seen, "icon"))
    , parent(Tests::text(seen, "parent"))
    , rectangle(Tests::rectangle(seen))
{
    const QJsonArray all = seen.value(QLatin1String("buttons")).toArray();
    for (const auto &button : all)
        buttons.append(SeenControl(button.toObject()));
}

QStringList SeenWindow::buttonTexts() const
{
    QStringList texts;
    for (const SeenControl &button : buttons)
        texts.append(button.text);
    return texts;
}

} // namespace Tests
