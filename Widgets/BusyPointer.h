#ifndef WIDGETS_BUSYPOINTER_H
#define WIDGETS_BUSYPOINTER_H

#include <QtGlobal>

namespace Quillmont::Utility::Widgets {

/// Shows the wait pointer for its lifetime. Can be nested: the pointer is back to normal when the
/// outermost one ends.
class BusyPointer
{
public:
    BusyPointer();
    ~BusyPointer();
    Q_DISABLE_COPY(BusyPointer)
};

/// Shows the normal pointer for its lifetime, however many BusyPointers there are.
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
