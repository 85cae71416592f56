#include "Doctor/LineDiff.h"

#include <QString>
#include <QVector>

#include <algorithm>
#include <vector>

namespace Quillmont::Utility::Doctor {

namespace {

using Lines = QVector<QString>;

// The lines with their line ends; the last one may have none.
Lines linesOf(const QString &text)
{
    Lines lines;
    for (int begin = 0; begin < text.size();) {
        const int end = text.indexOf(u'\n', begin);
        const int next = end < 0 ? text.size() : end + 1;
        lines.append(text.mid(begin, next - begin));
        begin = next;
    }
    return lines;
}

// A range of lines in each text: the new one replaces the old one.
struct Hunk
{
    int oldBegin;
    int oldEnd;
    int newBegin;
    int newEnd;
};

// For each pair of start lines, the length of the longest common subsequence of the rest.
QVector<QVector<int>> commonCounts(const Lines &before, const Lines &after, Hunk piece)
{
    const int rows = piece.oldEnd - piece.oldBegin;
    const int columns = piece.newEnd - piece.newBegin;
    QVector<QVector<int>> counts(rows + 1, QVector<int>(columns + 1));
    for (int i = rows - 1; i >= 0; --i) {
        for (int j = columns - 1; j >= 0; --j)
            counts[i][j] = before.at(piece.oldBegin + i) == after.at(piece.newBegin + j)
                ? counts.at(i + 1).at(j + 1) + 1
                : std::max(counts.at(i + 1).at(j), counts.at(i).at(j + 1));
    }
    return counts;
}

std::vector<Hunk> hunksIn(const Lines &before, const Lines &after, Hunk piece)
{
    constexpr qint64 maxCells = 250000; // some milliseconds
    const int rows = piece.oldEnd - piece.oldBegin;
    const int columns = piece.newEnd - piece.newBegin;
    if (qint64(rows) * columns > maxCells)
        return {piece};
    const auto counts = commonCounts(before, after, piece);
    std::vector<Hunk> hunks;
    int i = 0;
    int j = 0;
    int oldBegin = 0;
    int newBegin = 0;
    const auto end = [&] {
        if (i > oldBegin || j > newBegin)
            hunks.push_back({piece.oldBegin + oldBegin,
                             piece.oldBegin + i,
                             piece.newBegin + newBegin,
                             piece.newBegin + j});
    };
    while (i < rows && j < columns) {
        if (before.at(piece.oldBegin + i) == after.at(piece.newBegin + j)) {
            end();
            oldBegin = ++i;
            newBegin = ++j;
        } else if (counts.at(i + 1).at(j) >= counts.at(i).at(j + 1)) {
            ++i;
        } else {
            ++j;
        }
    }
    i = rows;
    j = columns;
    end();
    return hunks;
}

// Leaves out the equal lines at both ends.
Hunk differingPiece(const Lines &before, const Lines &after)
{
    Hunk piece{0, before.size(), 0, after.size()};
    const auto isOpen = [&] {
        return piece.oldBegin < piece.oldEnd && piece.newBegin < piece.newEnd;
    };
    while (isOpen() && before.at(piece.oldBegin) == after.at(piece.newBegin)) {
        ++piece.oldBegin;
        ++piece.newBegin;
    }
    while (isOpen() && before.at(piece.oldEnd - 1) == after.at(piece.newEnd - 1)) {
        --piece.oldEnd;
        --piece.newEnd;
    }
    return piece;
}

// An empty range is named by the line before it.
QString range(int begin, int end)
{
    return QStringLiteral("%1,%2").arg(end > begin ? begin + 1 : begin).arg(end - begin);
}

QString marked(QChar mark, const Lines &lines, int begin, int end)
{
    QString text;
    for (int i = begin; i < end; ++i) {
        text += mark + lines.at(i);
        if (!lines.at(i).endsWith(u'\n'))
            text += QStringLiteral("\n\\ No newline at end of file\n");
    }
    return text;
}

} // namespace

QString lineDiff(const QString &path, const QString &before, const QString &after)
{
    if (before == after && !before.isNull())
        return {};
    const Lines oldLines = linesOf(before);
    const Lines newLines = linesOf(after);
    QString text = QStringLiteral("--- %1\n+++ %2\n")
                       .arg(before.isNull() ? QStringLiteral("/dev/null") : path, path);
    const auto hunks = hunksIn(oldLines, newLines, differingPiece(oldLines, newLines));
    for (const Hunk hunk : hunks)
        text += QStringLiteral("@@ -%1 +%2 @@\n")
                    .arg(range(hunk.oldBegin, hunk.oldEnd), range(hunk.newBegin, hunk.newEnd))
            + marked(u'-', oldLines, hunk.oldBegin, hunk.oldEnd)
            + marked(u'+', newLines, hunk.newBegin, hunk.newEnd);
    return text;
}

} // namespace Quillmont::Utility::Doctor
