#include "Doctor/Quoting.h"

#include <QString>
#include <QVector>

namespace Quillmont::Utility::Doctor {

QString printable(const QString &text)
{
    QString safe;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        if (QChar::isPrint(character) && QChar::category(character) != QChar::Separator_Line
            && QChar::category(character) != QChar::Separator_Paragraph)
            safe += QString::fromUcs4(&character, 1);
        else
            safe += QStringLiteral("\\u%1").arg(character, 4, 16, QLatin1Char('0'));
    }
    return safe;
}

QString quoted(const QString &text)
{
    return u'"' + printable(text) + u'"';
}

QString shellWord(const QString &text)
{
    if (printable(text) == text)
        return u'\'' + QString(text).replace(u'\'', QLatin1String("'\\''")) + u'\'';
    QString word = QStringLiteral("$'");
    const QByteArray bytes = text.toUtf8();
    for (const char byte : bytes) {
        const auto value = static_cast<uchar>(byte);
        if (value > 0x20 && value < 0x7f && byte != '\'' && byte != '\\')
            word += QLatin1Char(byte);
        else
            word += QStringLiteral("\\x%1").arg(value, 2, 16, QLatin1Char('0'));
    }
    return word + u'\'';
}

} // namespace Quillmont::Utility::Doctor
