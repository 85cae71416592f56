#include "tests/Documents/Document.h"

#include "tests/support/Files.h"

#include <QDir>
#include <QRegularExpression>

namespace Tests {

static QString sources(const QString &name)
{
    return QStringLiteral(ORBWELL_SOURCE "/") + name;
}

Document::Document(const QString &name)
    : m_name(name)
    , m_lines(QString::fromUtf8(readFile(sources(name))).split(u'\n'))
{ }

QList<Document> Document::all()
{
    QList<Document> documents;
    for (const QString &folder : {QString(), QStringLiteral("docs/")}) {
        const QStringList names
            = QDir(sources(folder)).entryList({QStringLiteral("*.md")}, QDir::Files);
        for (const QString &name : names)
            documents.append(Document(folder + name));
    }
    return documents;
}

QString Document::text() const
{
    QStringList lines = m_lines;
    return lines.replaceInStrings(QRegularExpression(QStringLiteral("^> ")), QString()).join(u'\n');
}

QStringList Document::links() const
{
    static const QRegularExpression link(QStringLiteral("\\]\\(([^)\\s]+)\\)"));
    QStringList targets;
    auto it = link.globalMatch(m_lines.join(u'\n'));
    while (it.hasNext())
        targets.append(it.next().captured(1));
    return targets;
}

QStringList Document::anchors() const
{
    static const QRegularExpression dropped(QStringLiteral("[^\\w\\- ]"));
    QStringList names;
    for (const QString &line : m_lines) {
        if (line.startsWith(u'#'))
            names.append(line.section(u' ', 1).toLower().remove(dropped).replace(u' ', u'-'));
    }
    return names;
}

QStringList Document::commands() const
{
    QStringList commands = blockCommands() + inlineCommands();
    commands.removeDuplicates();
    return commands;
}

// Indented blocks and shell blocks; a remark begins after two spaces.
QStringList Document::blockCommands() const
{
    static const QRegularExpression remark(QStringLiteral(" {2,}#.*$"));
    QStringList commands;
    QString language;
    bool fenced = false;
    for (const QString &line : m_lines) {
        if (line.startsWith(QLatin1String("```"))) {
            fenced = !fenced;
            language = line.mid(3);
            continue;
        }
        const bool shell
            = fenced ? language == QLatin1String("sh") : line.startsWith(QLatin1String("    "));
        QString command = line.trimmed();
        command.remove(remark);
        // A block may also show the pattern of a name.
        if (shell && !command.isEmpty() && !command.startsWith(u'_'))
            commands.append(command.trimmed());
    }
    return commands;
}

// A program with arguments; a name alone in running text is not a command.
QStringList Document::inlineCommands() const
{
    static const QRegularExpression command(QStringLiteral(
        "(?<!`)`((?:QuillmontOrbwell|cmake|ctest|cpack|clang-format|apt|brew|sudo) [^`]+"
        "|script/[a-z-]+(?: [^`]+)?)`"));
    QStringList commands;
    auto it = command.globalMatch(m_lines.join(u'\n'));
    while (it.hasNext())
        commands.append(it.next().captured(1).simplified());
    return commands;
}

} // namespace Tests
