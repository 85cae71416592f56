#include "tests/Documents/TextList.h"

namespace Tests {

QString textListPath()
{
    return QStringLiteral(ORBWELL_SOURCE "/tests/Documents/texts.txt");
}

static QString escaped(QString text)
{
    return text.replace(u'\\', QLatin1String("\\\\"))
        .replace(u'\r', QLatin1String("\\r"))
        .replace(u'\n', QLatin1String("\\n"));
}

static QString unescaped(const QString &line)
{
    QString text;
    for (int i = 0; i < line.size(); ++i) {
        if (line.at(i) != u'\\') {
            text += line.at(i);
            continue;
        }
        const QChar next = line.at(++i);
        text += next == u'r' ? u'\r' : next == u'n' ? u'\n' : next;
    }
    return text;
}

QByteArray written(const QList<ListedText> &texts)
{
    QStringList lines;
    for (const ListedText &text : texts)
        lines.append(text.context + QLatin1String(" | ") + escaped(text.text) + u'\n');
    lines.sort();
    return lines.join(QString()).toUtf8();
}

QList<ListedText> listedTexts(const QByteArray &list)
{
    QList<ListedText> texts;
    const QStringList lines = QString::fromUtf8(list).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        texts.append({line.section(QLatin1String(" | "), 0, 0),
                      unescaped(line.section(QLatin1String(" | "), 1))});
    return texts;
}

} // namespace Tests
