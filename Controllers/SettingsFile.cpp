#include "Controllers/SettingsFile.h"

#include "Controllers/PathEncoding.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QMetaType>
#include <QRegularExpression>
#include <QVector>

namespace Quillmont::Utility::Controllers {

namespace {

// A folder a simulator is a few lines; what is bigger than this only eats up memory.
constexpr qint64 biggestSize = 8LL * 1024 * 1024;

// A text as the toolkit takes it: without quotes, with joined lines and characters for escapes.
QString plain(const QByteArray &bytes)
{
    static const QRegularExpression escape(
        QStringLiteral(R"("|\\(?:x([0-9a-fA-F]+)|([0-7]+)|\r\n|([\s\S])|$))"));
    static const QMap<QChar, QChar> named{{QLatin1Char('a'), QLatin1Char('\a')},
                                          {QLatin1Char('b'), QLatin1Char('\b')},
                                          {QLatin1Char('f'), QLatin1Char('\f')},
                                          {QLatin1Char('n'), QLatin1Char('\n')},
                                          {QLatin1Char('r'), QLatin1Char('\r')},
                                          {QLatin1Char('t'), QLatin1Char('\t')},
                                          {QLatin1Char('v'), QLatin1Char('\v')},
                                          {QLatin1Char('"'), QLatin1Char('"')},
                                          {QLatin1Char('?'), QLatin1Char('?')},
                                          {QLatin1Char('\''), QLatin1Char('\'')},
                                          {QLatin1Char('\\'), QLatin1Char('\\')}};
    const QString text = QString::fromLatin1(bytes);
    QString result;
    int begin = 0;
    auto it = escape.globalMatch(text);
    while (it.hasNext()) {
        const auto match = it.next();
        result += text.midRef(begin, match.capturedStart() - begin);
        begin = match.capturedEnd();
        if (match.capturedLength(1) > 0)
            result += QChar(static_cast<ushort>(match.capturedRef(1).right(4).toUInt(nullptr, 16)));
        else if (match.capturedLength(2) > 0)
            result += QChar(static_cast<ushort>(match.capturedRef(2).right(6).toUInt(nullptr, 8)));
        else if (match.capturedLength(3) > 0 && named.contains(match.captured(3).at(0)))
            result += named.value(match.captured(3).at(0));
    }
    return result + text.midRef(begin);
}

// The toolkit rebuilds any object that a value describes. A list of objects can ask for all memory
// in a few bytes, or lie in a list in a list until the stack ends; a colour or a font cannot.
bool describesOnlyPlainObjects(const QString &text)
{
    static const QVector<int> plainTypes{QMetaType::LongLong,
                                         QMetaType::ULongLong,
                                         QMetaType::Double,
                                         QMetaType::Float,
                                         QMetaType::QDate,
                                         QMetaType::QTime,
                                         QMetaType::QDateTime,
                                         QMetaType::QRect,
                                         QMetaType::QRectF,
                                         QMetaType::QSize,
                                         QMetaType::QSizeF,
                                         QMetaType::QPoint,
                                         QMetaType::QPointF,
                                         QMetaType::QColor,
                                         QMetaType::QFont};
    const QString object = QStringLiteral("@Variant(");
    for (int i = text.indexOf(object); i >= 0; i = text.indexOf(object, i + 1)) {
        const QString type = text.mid(i + object.size(), 4);
        if (type.size() < 4 || !type.startsWith(QString(3, QChar()))
            || !plainTypes.contains(type.at(3).unicode()))
            return false;
    }
    return true;
}

// At a pipe the toolkit would wait for ever.
bool isFileOrFree(const QString &path)
{
    const QFileInfo info(path);
    return (info.isFile() && info.isWritable()) || !(info.exists() || info.isSymLink());
}

} // namespace

bool SettingsFile::canRead(const QString &path)
{
    QFile file(path);
    if (!PathEncoding::survives(path) || !QFileInfo(path).isFile() || file.size() > biggestSize
        || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.read(biggestSize + 1);
    return bytes.size() <= biggestSize && describesOnlyPlainObjects(plain(bytes));
}

// The toolkit waits for the lock file beside it, and for the one with which it clears a dead one.
bool SettingsFile::canWrite(const QString &path)
{
    const QString lock = path + QStringLiteral(".lock");
    return PathEncoding::survives(path) && (canRead(path) || !QFileInfo::exists(path))
        && isFileOrFree(lock) && !QFileInfo::exists(lock + QStringLiteral(".rmlock"));
}

} // namespace Quillmont::Utility::Controllers
