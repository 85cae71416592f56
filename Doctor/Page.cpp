#include "Doctor/Page.h"

#include "Doctor/Columns.h"
#include "Doctor/Quoting.h"

#include <QStringList>

#include <sys/ioctl.h>
#include <unistd.h>

namespace Quillmont::Utility::Doctor {

namespace {

QString withoutBlanks(QString line)
{
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

} // namespace

Page Page::forStandardOutput()
{
    if (::isatty(STDOUT_FILENO) == 0)
        return {0, false};
    struct winsize size = {};
    const bool isKnown = ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return {isKnown ? size.ws_col : 80, qEnvironmentVariableIsEmpty("NO_COLOR")};
}

void Page::add(int indent, const QString &line, Style style)
{
    if (m_width == 0) {
        addExactly(indent, line, style);
        return;
    }
    const QString blanks(indent, u' ');
    QString folded;
    int columns = indent;
    const QStringList pieces = breakable(printable(line));
    for (const QString &piece : pieces) {
        const bool fits = columns + columnsOf(withoutBlanks(piece)) <= m_width;
        if (!folded.isEmpty() && !fits) {
            m_text += blanks + coloured(withoutBlanks(folded), style) + u'\n';
            folded = QStringLiteral("  ");
            columns = indent + 2;
        }
        folded += piece;
        columns += columnsOf(piece);
    }
    m_text += blanks + coloured(folded, style) + u'\n';
}

void Page::addExactly(int indent, const QString &line, Style style)
{
    m_text += QString(indent, u' ') + coloured(printable(line), style) + u'\n';
}

QString Page::coloured(const QString &line, Style style) const
{
    if (!m_isColoured || style == Plain)
        return line;
    const char *code = style == Good ? "32" : style == Bad ? "31" : "1";
    return QStringLiteral("\033[%1m%2\033[0m").arg(QLatin1String(code), line);
}

} // namespace Quillmont::Utility::Doctor
