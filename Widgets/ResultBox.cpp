#include "Widgets/ResultBox.h"

#include "Widgets/BusyPointer.h"
#include "Widgets/FittingBox.h"

#include <QMessageBox>

namespace Quillmont::Utility::Widgets {

namespace {

// No path that leads anywhere makes a longer line, and the toolkit takes minutes to lay out one of
// a million characters, which a record can name.
constexpr int longestLine = 20000;
// Nor has a catalogue so many files, and each line end takes its time, too.
constexpr int mostLines = 20000;

QString shown(const QString &text)
{
    if (text.size() <= longestLine)
        return text;
    QStringList lines = text.split(u'\n').mid(0, mostLines);
    for (QString &line : lines) {
        if (line.size() > longestLine)
            line = line.left(longestLine) + QChar(0x2026);
    }
    return lines.join(u'\n');
}

} // namespace

void showInformation(const QString &title, const QString &text)
{
    const BusyPointerPause pause;
    const FittingBox fitting;
    QMessageBox::information(nullptr, title, shown(text), QMessageBox::Ok);
}

} // namespace Quillmont::Utility::Widgets
