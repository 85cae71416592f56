#ifndef WIDGETS_RESULTBOX_H
#define WIDGETS_RESULTBOX_H

class QString;

namespace Quillmont::Utility::Widgets {

/// Shows a result, good or bad, in a modal box with an Ok button, and waits until it is closed.
/// Meanwhile the pointer is the normal one.
void showInformation(const QString &title, const QString &text);

} // namespace Quillmont::Utility::Widgets

#endif
