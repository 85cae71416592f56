#include "tests/support/driver/Eye.h"

#include <QAbstractButton>
#include <QApplication>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMetaEnum>
#include <QTextDocument>

#include <algorithm>

namespace Tests::Eye {

static QString plain(const QString &text)
{
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

static QJsonArray screenRectangle(const QWidget *widget)
{
    const QPoint at = widget->mapToGlobal(QPoint(0, 0));
    return {at.x(), at.y(), widget->width(), widget->height()};
}

static QJsonObject control(const QAbstractButton *button)
{
    return {{QStringLiteral("text"), shownText(button)},
            {QStringLiteral("enabled"), button->isEnabled()},
            {QStringLiteral("rectangle"), screenRectangle(button)}};
}

static QListWidget *list()
{
    const auto all = QApplication::topLevelWidgets();
    for (const QWidget *window : all) {
        if (auto *found = window->findChild<QListWidget *>(); found && found->isVisible())
            return found;
    }
    return nullptr;
}

static QJsonArray buttonsOf(const QWidget *window)
{
    QJsonArray buttons;
    const QListWidget *rows = list();
    const auto all = window->findChildren<QAbstractButton *>();
    for (const auto *button : all) {
        if (button->isVisible() && !(rows && rows->isAncestorOf(button)))
            buttons.append(control(button));
    }
    return buttons;
}

static void describeBox(QJsonObject *seen, const QMessageBox *box)
{
    const QWidget *parent = box->parentWidget();
    const QString icon
        = QString::fromLatin1(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box->icon()));
    seen->insert(QStringLiteral("text"), box->text());
    seen->insert(QStringLiteral("icon"), icon);
    seen->insert(QStringLiteral("parent"),
                 parent ? QString::fromLatin1(parent->metaObject()->className()) : QString());
}

// A later window can have the same address.
static int numberOf(QWidget *window)
{
    static int count = 0;
    const char *name = "orbwell-driver-number";
    if (!window->property(name).isValid())
        window->setProperty(name, ++count);
    return window->property(name).toInt();
}

static QJsonObject describe(QWidget *window)
{
    QJsonObject seen{
        {QStringLiteral("number"), numberOf(window)},
        {QStringLiteral("class"), QString::fromLatin1(window->metaObject()->className())},
        {QStringLiteral("title"), window->windowTitle()},
        {QStringLiteral("buttons"), buttonsOf(window)},
        {QStringLiteral("rectangle"), screenRectangle(window)}};
    if (const auto *box = qobject_cast<const QMessageBox *>(window))
        describeBox(&seen, box);
    else if (const auto *label = window->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly))
        seen.insert(QStringLiteral("text"), label->text());
    return seen;
}

QWidget *inputWindow()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    const auto all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

QJsonArray windows()
{
    QJsonArray seen;
    const QWidget *first = inputWindow();
    const auto all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (!window->isVisible())
            continue;
        if (window == first)
            seen.prepend(describe(window));
        else
            seen.append(describe(window));
    }
    return seen;
}

static qint64 difference(const QImage &a, const QImage &b)
{
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor left = a.pixelColor(x, y);
            const QColor right = b.pixelColor(x, y);
            sum += qAbs(left.alpha() - right.alpha())
                + (qAbs(left.red() - right.red()) + qAbs(left.green() - right.green())
                   + qAbs(left.blue() - right.blue()))
                    * qMin(left.alpha(), right.alpha()) / 255;
        }
    }
    return sum;
}

static QString iconName(const QPixmap &pixmap)
{
    QString nearest;
    qint64 smallest = 100000; // more than scaling ever changes a picture
    const QImage shown = pixmap.toImage().scaled(44, 44, {}, Qt::SmoothTransformation);
    for (const char *name : {"check-green", "check-grey", "minus-grey"}) {
        const QImage drawn(
            QStringLiteral(":/assets/Quillmont Orbwell/icon-%1-44.png").arg(QLatin1String(name)));
        if (drawn.isNull())
            continue;
        if (const qint64 distance = difference(shown, drawn); distance < smallest) {
            smallest = distance;
            nearest = QLatin1String(name);
        }
    }
    return nearest;
}

static void describeLabels(QJsonObject *seen, const QWidget *row)
{
    const auto labels = row->findChildren<QLabel *>();
    for (const auto *label : labels) {
        const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
        if (pixmap.isNull())
            seen->insert(QStringLiteral("name"), plain(label->text()));
        else
            seen->insert(QStringLiteral("icon"), iconName(pixmap));
    }
}

static QJsonObject describeRow(const QWidget *row)
{
    QJsonObject seen{{QStringLiteral("action"), control(buttonOf(row, false))},
                     {QStringLiteral("browse"), control(buttonOf(row, true))}};
    describeLabels(&seen, row);
    const auto *field = row->findChild<QLineEdit *>();
    seen.insert(QStringLiteral("path"), field->text());
    seen.insert(QStringLiteral("placeholder"), field->placeholderText());
    seen.insert(QStringLiteral("toolTip"), field->toolTip());
    seen.insert(QStringLiteral("rectangle"), screenRectangle(row));
    return seen;
}

template <typename Use>
static void eachRow(Use use)
{
    const QListWidget *rows = list();
    for (int i = 0; rows && i < rows->count(); ++i) {
        if (QWidget *row = rows->itemWidget(rows->item(i)))
            use(row);
    }
}

QJsonArray rows()
{
    QJsonArray seen;
    eachRow([&seen](const QWidget *row) { seen.append(describeRow(row)); });
    return seen;
}

QWidget *rowOf(const QString &simulator)
{
    QWidget *found = nullptr;
    eachRow([&](QWidget *row) {
        if (describeRow(row).value(QLatin1String("name")).toString() == simulator)
            found = row;
    });
    return found;
}

QAbstractButton *buttonOf(const QWidget *row, bool browse)
{
    const auto buttons = row->findChildren<QAbstractButton *>();
    const auto it = std::find_if(buttons.cbegin(), buttons.cend(), [browse](auto *button) {
        return (button->text() == QLatin1String("...")) == browse;
    });
    return it == buttons.cend() ? nullptr : *it;
}

QString shownText(const QAbstractButton *button)
{
    QString text = button->text();
    const QString kept(QChar::Null);
    return text.replace(QLatin1String("&&"), kept).remove(u'&').replace(kept, QLatin1String("&"));
}

} // namespace Tests::Eye
