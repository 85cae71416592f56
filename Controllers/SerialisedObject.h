#ifndef CONTROLLERS_SERIALISEDOBJECT_H
#define CONTROLLERS_SERIALISEDOBJECT_H

#include <QByteArray>
#include <QDataStream>

#include <functional>

namespace Quillmont::Utility::Controllers {

/// Checks the object that a value in a settings file describes, before Qt creates it. Qt trusts the
/// description: it reserves whatever memory a list claims, and recurses until the stack overflows.
class SerialisedObject
{
public:
    enum Verdict {
        Whole, ///< Qt can create it, and writes it back unchanged.
        Lossy, ///< Damaged, or of a type that only another program knows: Qt would drop it.
        Harmful ///< Creating it can crash or hang the program, or use up memory.
    };

    /// What all objects of a file may take together, since Qt keeps them all.
    struct Budget
    {
        qint64 bytes = 1024LL * 1024 * 1024;
        qint64 steps = 4LL * 1024 * 1024 * 1024; ///< Seconds.
    };

    /// The verdict on a value with this @p text; the cost of its object is subtracted from
    /// @p budget. A value that describes no object is whole.
    static Verdict verdict(const QString &text, Budget *budget);

private:
    SerialisedObject(const QByteArray &bytes, QDataStream::Version version, Budget *budget);

    // Each reads one item. False: nothing more can be read; the verdict is set. @p begin is where
    // the item begins.
    bool readDateTime(const QByteArray &bytes);
    bool readVariant();
    bool readObject(int type, qint64 begin);
    bool readPicture(int type, qint64 begin);
    bool readPlain(qint64 begin);
    bool readElements(const std::function<bool()> &readElement);
    bool readText();
    bool readBytes();
    bool readPattern(qint64 begin);
    bool readCbor(qint64 begin);
    bool readImage();
    bool readBrush();
    bool readPen();
    bool readPalette();
    bool readCursor();
    bool readRegion();
    bool skip(qint64 size);

    int typeHere();
    bool isSmallPng();
    bool isInBands(quint32 rectangles);
    bool takeBytes(qint64 bytes);
    bool takeSteps(qint64 steps);
    bool fail(Verdict verdict);

    QDataStream m_stream;
    Budget *const m_budget;
    int m_depth = 0;
    Verdict m_verdict = Whole;
};

} // namespace Quillmont::Utility::Controllers

#endif
