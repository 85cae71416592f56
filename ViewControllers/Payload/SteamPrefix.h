#ifndef VIEWCONTROLLERS_PAYLOAD_STEAMPREFIX_H
#define VIEWCONTROLLERS_PAYLOAD_STEAMPREFIX_H

namespace Quillmont::Library::Models {
class XmlConfigModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Utility::ViewControllers {

/// If @p config names a file in a game's Proton prefix, makes its path relative to the data root.
/// The path becomes empty if the last detection found no prefix.
void findPrefix(Library::Models::XmlConfigModel *config);

} // namespace Quillmont::Utility::ViewControllers

#endif
