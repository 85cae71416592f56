#include "Controllers/SerialisedObject.h"

#include <QCborStreamReader>
#include <QIODevice>
#include <QRegularExpression>
#include <QVariant>
#include <QVector>

#include <algorithm>

namespace Quillmont::Utility::Controllers {

namespace {

// Qt builds all states of a QRegExp at once: as many as its pattern has characters with each
// repetition written out.
qint64 statesOf(const QString &pattern)
{
    static const QRegularExpression token(QStringLiteral(R"(\\.|\[[^\]]*\]|\{(\d*),?(\d*)\}|.)"),
                                          QRegularExpression::DotMatchesEverythingOption);
    constexpr qint64 max = 1000000;
    QVector<qint64> groups{0};
    qint64 last = 0;
    for (auto it = token.globalMatch(pattern); it.hasNext() && groups.constLast() < max;) {
        const auto match = it.next();
        const qint64 times
            = std::max({1, match.capturedRef(1).toInt(), match.capturedRef(2).toInt()});
        if (match.capturedLength(1) + match.capturedLength(2) > 0) {
            groups.last() += last * (times - 1);
            last *= times;
        } else if (match.capturedRef() == u'(') {
            groups.append(0);
        } else if (match.capturedRef() == u')' && groups.size() > 1) {
            last = groups.takeLast();
            groups.last() += last;
        } else {
            last = 1;
            groups.last() += 1;
        }
    }
    return std::min(max, *std::max_element(groups.cbegin(), groups.cend()));
}

// Qt reserves memory for as many elements as each array and map claims.
bool hasClaimedElements(const QByteArray &cbor)
{
    constexpr int maxDepth = 1000;
    const auto size = static_cast<quint64>(cbor.size());
    QCborStreamReader reader(cbor);
    quint64 elements = 0;
    int depth = 0;
    while (reader.lastError() == QCborError::NoError && (depth > 0 || reader.isValid())) {
        if (depth > 0 && !reader.hasNext()) {
            reader.leaveContainer();
            --depth;
        } else if (reader.isContainer()) {
            elements += reader.isLengthKnown() ? std::min(reader.length(), size + 1) : 0;
            if (elements > size || ++depth > maxDepth)
                return false;
            reader.enterContainer();
        } else {
            reader.next();
        }
    }
    return true;
}

} // namespace

SerialisedObject::Verdict SerialisedObject::verdict(const QString &text, Budget *budget)
{
    const QString variant = QStringLiteral("@Variant(");
    const QString dateTime = QStringLiteral("@DateTime(");
    const bool isDateTime = text.startsWith(dateTime);
    if (!isDateTime && !text.startsWith(variant))
        return Whole;
    const QByteArray bytes = text.mid(isDateTime ? dateTime.size() : variant.size()).toLatin1();
    const auto version = isDateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0;
    SerialisedObject object(bytes, version, budget);
    const bool isRead = isDateTime ? object.readDateTime(bytes) : object.readVariant();
    if (isRead && object.m_stream.device()->readAll() != ")")
        object.fail(Lossy);
    return object.m_verdict;
}

SerialisedObject::SerialisedObject(const QByteArray &bytes,
                                   QDataStream::Version version,
                                   Budget *budget)
    : m_stream(bytes)
    , m_budget(budget)
{
    m_stream.setVersion(version);
}

bool SerialisedObject::readDateTime(const QByteArray &bytes)
{
    quint32 type = QMetaType::UnknownType;
    m_stream >> type;
    // Qt reads a time zone from the file of its name; with dots that can be any file.
    const bool leadsOut = bytes.contains(QByteArray("\0.\0.", 4));
    return type == QMetaType::QDateTime && !leadsOut ? readPlain(0) : fail(Harmful);
}

// NOLINTNEXTLINE(misc-no-recursion): ends at a depth far below the stack's limit.
bool SerialisedObject::readVariant()
{
    constexpr int maxDepth = 1000;
    if (++m_depth > maxDepth)
        return fail(Harmful);
    const qint64 begin = m_stream.device()->pos();
    const int type = typeHere();
    const bool isRead = type >= 0 && readObject(type, begin);
    --m_depth;
    return isRead;
}

// In Qt 5.15's numbering; -1 if reading cannot continue.
int SerialisedObject::typeHere()
{
    quint32 stored = QMetaType::UnknownType;
    m_stream >> stored;
    int type = static_cast<int>(std::min<quint32>(stored, QMetaType::User));
    if (m_stream.status() != QDataStream::Ok)
        return fail(Lossy) - 1;
    if (stored == 127 || stored == QMetaType::User) {
        QByteArray name;
        m_stream >> name;
        type = QMetaType::type(name.constData());
        return type > QMetaType::UnknownType && type < QMetaType::User ? type : fail(Lossy) - 1;
    }
    if (stored >= 128)
        type = static_cast<int>(std::min<quint32>(stored - 97, QMetaType::User));
    else if (stored == 75)
        type = QMetaType::QSizePolicy;
    else if (stored > 75 && stored <= 86)
        type -= 1;
    return type < QMetaType::User ? type : fail(Harmful) - 1;
}

// NOLINTNEXTLINE(misc-no-recursion)
bool SerialisedObject::readObject(int type, qint64 begin)
{
    switch (type) {
    case QMetaType::QVariant:
        return readVariant();
    case QMetaType::QVariantList:
        return readElements([this] { return readVariant(); });
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return readElements([this] { return readText() && readVariant(); });
    case QMetaType::QTextFormat:
        return skip(4) && readElements([this] { return skip(4) && readVariant(); });
    case QMetaType::QStringList:
        return readElements([this] { return readText(); });
    case QMetaType::QByteArrayList:
        return readElements([this] { return readBytes(); });
    case QMetaType::QRegExp:
        return readPattern(begin);
    case QMetaType::QCborValue:
    case QMetaType::QCborArray:
    case QMetaType::QCborMap:
        return readCbor(begin);
    case QMetaType::VoidStar:
    case QMetaType::QObjectStar:
    case QMetaType::QModelIndex:
    case QMetaType::QPersistentModelIndex:
    case QMetaType::Void:
        return fail(Lossy);
    default:
        return readPicture(type, begin);
    }
}

bool SerialisedObject::readPlain(qint64 begin)
{
    m_stream.device()->seek(begin);
    QVariant ignored;
    m_stream >> ignored;
    return m_stream.status() == QDataStream::Ok || fail(Lossy);
}

bool SerialisedObject::readElements(const std::function<bool()> &readElement)
{
    constexpr qint64 elementSize = 64;
    quint32 count = 0;
    m_stream >> count;
    if (!takeBytes(elementSize * count))
        return false;
    for (quint32 i = 0; i < count; ++i)
        if (!readElement())
            return false;
    return m_stream.status() == QDataStream::Ok || fail(Lossy);
}

bool SerialisedObject::readText()
{
    QString ignored;
    m_stream >> ignored;
    // After an odd number of bytes Qt continues in the middle of a character.
    if (m_stream.status() != QDataStream::Ok)
        return fail(m_stream.status() == QDataStream::ReadCorruptData ? Harmful : Lossy);
    return true;
}

bool SerialisedObject::readBytes()
{
    QByteArray ignored;
    m_stream >> ignored;
    return m_stream.status() == QDataStream::Ok || fail(Lossy);
}

bool SerialisedObject::readPattern(qint64 begin)
{
    QString pattern;
    m_stream >> pattern;
    constexpr qint64 transitionSize = 32;
    const qint64 states = statesOf(pattern);
    return takeSteps(states * states * states) && takeBytes(states * states * transitionSize)
        && readPlain(begin);
}

bool SerialisedObject::readCbor(qint64 begin)
{
    QByteArray bytes;
    m_stream >> bytes;
    return hasClaimedElements(bytes) ? readPlain(begin) : fail(Harmful);
}

bool SerialisedObject::skip(qint64 size)
{
    QIODevice *const device = m_stream.device();
    return size <= device->bytesAvailable() ? device->seek(device->pos() + size) : fail(Lossy);
}

bool SerialisedObject::takeBytes(qint64 bytes)
{
    m_budget->bytes -= bytes;
    return m_budget->bytes >= 0 || fail(Harmful);
}

bool SerialisedObject::takeSteps(qint64 steps)
{
    m_budget->steps -= steps;
    return m_budget->steps >= 0 || fail(Harmful);
}

bool SerialisedObject::fail(Verdict verdict)
{
    m_verdict = std::max(m_verdict, verdict);
    return false;
}

} // namespace Quillmont::Utility::Controllers
