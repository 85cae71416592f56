#include "Doctor/Columns.h"

#include <QTextBoundaryFinder>
#include <QVector>

#include <algorithm>
#include <array>
#include <iterator>

namespace Quillmont::Utility::Doctor {

namespace {

// Unicode's "wide" and "fullwidth" characters, in blocks. Neither Qt nor every locale's C library
// has them.
bool isWide(uint character)
{
    struct Block
    {
        uint first;
        uint last;
    };

    constexpr std::array<Block, 11> blocks{{{0x1100, 0x115f},
                                            {0x2e80, 0x303e},
                                            {0x3041, 0xa4cf},
                                            {0xac00, 0xd7a3},
                                            {0xf900, 0xfaff},
                                            {0xfe30, 0xfe6f},
                                            {0xff01, 0xff60},
                                            {0xffe0, 0xffe6},
                                            {0x1f300, 0x1f64f},
                                            {0x1f900, 0x1f9ff},
                                            {0x20000, 0x3fffd}}};
    return std::any_of(blocks.cbegin(), blocks.cend(), [character](Block block) {
        return character >= block.first && character <= block.last;
    });
}

int columnsOf(uint character)
{
    const auto category = QChar::category(character);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing)
        return 0;
    return isWide(character) ? 2 : 1;
}

// Between others than wide characters only a blank is a good place: a path stays in one piece.
bool mayEndAt(const QString &text, int place)
{
    return text.at(place - 1) == u' ' || isWide(text.at(place - 1).unicode())
        || (place < text.size() && isWide(text.at(place).unicode()));
}

} // namespace

int columnsOf(const QString &text)
{
    int columns = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters)
        columns += columnsOf(character);
    return columns;
}

QStringList breakable(const QString &text)
{
    QStringList pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    int begin = 0;
    for (int place = finder.toNextBoundary(); place > 0; place = finder.toNextBoundary()) {
        if (place < text.size() && !mayEndAt(text, place))
            continue;
        pieces.append(text.mid(begin, place - begin));
        begin = place;
    }
    return pieces;
}

} // namespace Quillmont::Utility::Doctor
