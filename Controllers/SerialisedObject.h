#ifndef CONTROLLERS_SERIALISEDOBJECT_H
#define CONTROLLERS_SERIALISEDOBJECT_H

#include <QByteArray>
#include <QDataStream>

#include <functional>

namespace Quillmont::Utility::Controllers {

/// The object that a value of a settings file describes, looked at before Qt makes it. Qt believes
/// the description: it reserves what a list says it has, and goes down into lists in lists until
/// the stack ends.
class SerialisedObject
{
public:
    enum Verdict {
        Whole, ///< Qt makes it, and describes it again.
        Lossy, ///< It is damaged, or of a kind that only another program knows: Qt would drop it.
        Harmful ///< Making it can end the program, go on for ever, or take all memory.
    };

    /// What the objects of a file may take together: Qt keeps all that it has made.
    struct Budget
    {
        qint64 bytes = 1024LL * 1024 * 1024;
        qint64 steps = 4LL * 1024 * 1024 * 1024; ///< Seconds.
    };

    /// What a value that says @p text is; what its object takes is subtracted from @p budget. A
    /// value that describes no object is whole.
    static Verdict verdict(const QString &text, Budget *budget);

private:
    SerialisedObject(const QByteArray &bytes, QDataStream::Version version, Budget *budget);

    // Each reads one thing. False: nothing more can be read, for a reason that is noted. What Qt
    // may read by itself begins at @p begin.
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
