#ifndef WIDGETS_RESULTBOX_H
#define WIDGETS_RESULTBOX_H

class QString;

namespace Quillmont::Utility::Widgets {

/// Tells the user an outcome, good or bad, in a box of its own with one Ok button, and waits
/// until it is read. The pointer is the ordinary one meanwhile.
void showInformation(const QString &title, const QString &text);

} // namespace Quillmont::Utility::Widgets

#endif
