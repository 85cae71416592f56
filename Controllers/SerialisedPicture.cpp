#include "Controllers/SerialisedObject.h"

#include <QBrush>
#include <QIODevice>
#include <QImage>
#include <QPalette>

#include <algorithm>

namespace Quillmont::Utility::Controllers {

// The types of Qt Gui: colours, pictures and shapes.
bool SerialisedObject::readPicture(int type, qint64 begin)
{
    switch (type) {
    case QMetaType::QImage:
    case QMetaType::QPixmap:
    case QMetaType::QBitmap:
    case QMetaType::QIcon:
        return readImage();
    case QMetaType::QBrush:
        return readBrush();
    case QMetaType::QPen:
        return readPen();
    case QMetaType::QPalette:
        return readPalette();
    case QMetaType::QCursor:
        return readCursor();
    case QMetaType::QRegion:
        return readRegion();
    case QMetaType::QPolygon:
        return readElements([this] { return skip(8); });
    case QMetaType::QPolygonF:
        return readElements([this] { return skip(16); });
    default:
        if (type == QMetaType::UnknownType || QMetaType::isRegistered(type))
            return readPlain(begin);
        // Qt ignores the type, and continues after one text.
        fail(Lossy);
        return readText();
    }
}

// After a picture that Qt cannot read, its position is unpredictable.
bool SerialisedObject::readImage()
{
    const qint64 begin = m_stream.device()->pos();
    qint32 isThere = 0;
    m_stream >> isThere;
    if (isThere == 0)
        return m_stream.status() == QDataStream::Ok || fail(Lossy);
    if (!isSmallPng())
        return fail(Harmful);
    m_stream.device()->seek(begin);
    QImage ignored;
    m_stream >> ignored;
    return m_stream.status() == QDataStream::Ok || fail(Harmful);
}

bool SerialisedObject::isSmallPng()
{
    constexpr quint64 signature = 0x89504e470d0a1a0a;
    constexpr quint32 header = 0x49484452; // "IHDR"
    constexpr quint32 end = 0x49454e44; // "IEND"
    constexpr quint32 isOptional = 0x20000000;
    constexpr qint64 maxSide = 1000000;
    constexpr qint64 pixelSize = 8;
    constexpr qint64 compression = 1024;
    quint64 begin = 0;
    quint32 length = 0;
    quint32 type = 0;
    quint32 width = 0;
    quint32 height = 0;
    m_stream >> begin >> length >> type >> width >> height;
    if (begin != signature || type != header || length < 8)
        return false;
    if (!takeBytes(std::min<qint64>(width, maxSide) * std::min<qint64>(height, maxSide)
                   * pixelSize))
        return false;
    for (length -= 8; skip(length + 4LL) && type != end;) {
        m_stream >> length >> type;
        // Texts and colour profiles are compressed, up to a thousand times.
        if ((type & isOptional) != 0 && !takeBytes(length * compression))
            return false;
    }
    return type == end && m_stream.status() == QDataStream::Ok;
}

bool SerialisedObject::readBrush()
{
    quint8 style = Qt::NoBrush;
    m_stream >> style;
    if (!skip(11))
        return false;
    if (style == Qt::TexturePattern)
        return readImage();
    if (style < Qt::LinearGradientPattern || style > Qt::ConicalGradientPattern)
        return true;
    qint32 gradient = 0;
    m_stream >> gradient;
    const int points = gradient == QGradient::LinearGradient ? 4
        : gradient == QGradient::RadialGradient              ? 5
                                                             : 3;
    return readElements([this] { return skip(19); }) && skip(8LL * points);
}

bool SerialisedObject::readPen()
{
    return skip(9) && readBrush() && skip(8) && readElements([this] { return skip(8); });
}

bool SerialisedObject::readPalette()
{
    constexpr int brushes = QPalette::NColorGroups * (QPalette::AlternateBase + 1);
    for (int i = 0; i < brushes; ++i)
        if (!readBrush())
            return false;
    return true;
}

bool SerialisedObject::readCursor()
{
    qint16 shape = Qt::ArrowCursor;
    m_stream >> shape;
    if (shape != Qt::BitmapCursor)
        return m_stream.status() == QDataStream::Ok || fail(Lossy);
    quint8 isPixmap = 0;
    m_stream >> isPixmap;
    return readImage() && (isPixmap != 0 || readImage()) && skip(8);
}

// Qt writes a region as its rectangles only, row by row.
bool SerialisedObject::readRegion()
{
    constexpr quint32 rectangles = 10;
    quint32 size = 0;
    quint32 kind = 0;
    quint32 count = 0;
    m_stream >> size;
    if (size == 0)
        return m_stream.status() == QDataStream::Ok || fail(Lossy);
    m_stream >> kind >> count;
    if (kind != rectangles || size != 8 + 16LL * count || !takeSteps(qint64(count) * count))
        return fail(Harmful);
    return isInBands(count) || fail(Harmful);
}

bool SerialisedObject::isInBands(quint32 rectangles)
{
    qint32 beforeTop = 0;
    qint32 beforeRight = 0;
    qint32 beforeBottom = 0;
    for (quint32 i = 0; i < rectangles; ++i) {
        qint32 left = 0;
        qint32 top = 0;
        qint32 right = 0;
        qint32 bottom = 0;
        m_stream >> left >> top >> right >> bottom;
        const bool isBeside = top == beforeTop && bottom == beforeBottom && left > beforeRight;
        if (right < left || bottom < top || (i > 0 && top <= beforeBottom && !isBeside))
            return false;
        beforeTop = top;
        beforeRight = right;
        beforeBottom = bottom;
    }
    return m_stream.status() == QDataStream::Ok;
}

} // namespace Quillmont::Utility::Controllers
