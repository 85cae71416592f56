#include "Doctor/LineDiff.h"

#include <algorithm>
#include <vector>

namespace Quillmont::Utility::Doctor {

namespace {

using Lines = QStringList;

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

QString head(const QString &before, const QString &after)
{
    return QStringLiteral("--- %1\n+++ %2\n").arg(before, after);
}

// Of a piece in which @p before begins at the line @p oldBegin, and @p after at @p newBegin.
QString hunkTexts(const Lines &before, int oldBegin, const Lines &after, int newBegin)
{
    QString text;
    const auto hunks = hunksIn(before, after, differingPiece(before, after));
    for (const Hunk hunk : hunks)
        text += QStringLiteral("@@ -%1 +%2 @@\n")
                    .arg(range(oldBegin + hunk.oldBegin, oldBegin + hunk.oldEnd),
                         range(newBegin + hunk.newBegin, newBegin + hunk.newEnd))
            + marked(u'-', before, hunk.oldBegin, hunk.oldEnd)
            + marked(u'+', after, hunk.newBegin, hunk.newEnd);
    return text;
}

// Those that touch each other are one.
QVector<LineEdit> merged(const QVector<LineEdit> &edits)
{
    QVector<LineEdit> all;
    for (const LineEdit &edit : edits) {
        if (!all.isEmpty() && all.constLast().end == edit.begin) {
            all.last().end = edit.end;
            all.last().lines += edit.lines;
        } else {
            all.append(edit);
        }
    }
    return all;
}

} // namespace

QStringList linesOf(const QString &text)
{
    QStringList lines;
    for (int begin = 0; begin < text.size();) {
        const int end = text.indexOf(u'\n', begin);
        const int next = end < 0 ? text.size() : end + 1;
        lines.append(text.mid(begin, next - begin));
        begin = next;
    }
    return lines;
}

QString lineDiff(const QString &path, const QString &before, const QString &after)
{
    if (before == after && !before.isNull())
        return {};
    return head(before.isNull() ? QStringLiteral("/dev/null") : path, path)
        + hunkTexts(linesOf(before), 0, linesOf(after), 0);
}

QString lineDiff(const QString &path, const QStringList &before, const QVector<LineEdit> &edits)
{
    QString hunks;
    int shift = 0;
    const QVector<LineEdit> all = merged(edits);
    for (const LineEdit &edit : all) {
        const QStringList old = before.mid(edit.begin, edit.end - edit.begin);
        hunks += hunkTexts(old, edit.begin, edit.lines, edit.begin + shift);
        shift += edit.lines.size() - old.size();
    }
    return hunks.isEmpty() ? QString() : head(path, path) + hunks;
}

} // namespace Quillmont::Utility::Doctor
