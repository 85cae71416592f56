#ifndef WIDGETS_BUSYPOINTER_H
#define WIDGETS_BUSYPOINTER_H

#include <QtGlobal>

namespace Quillmont::Utility::Widgets {

/// Shows the wait pointer while it lives. Work that calls other work needs no care: the pointer
/// is back to normal when the outermost one ends.
class BusyPointer
{
public:
    BusyPointer();
    ~BusyPointer();
    Q_DISABLE_COPY(BusyPointer)
};

/// Gives the user the ordinary pointer back while it lives, however much work is under way.
class BusyPointerPause
{
public:
    BusyPointerPause();
    ~BusyPointerPause();
    Q_DISABLE_COPY(BusyPointerPause)

private:
    int m_depth = 0;
};

} // namespace Quillmont::Utility::Widgets

#endif
