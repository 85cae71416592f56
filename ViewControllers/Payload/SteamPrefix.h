#ifndef VIEWCONTROLLERS_PAYLOAD_STEAMPREFIX_H
#define VIEWCONTROLLERS_PAYLOAD_STEAMPREFIX_H

namespace Quillmont::Library::Models {
class XmlConfigModel;
} // namespace Quillmont::Library::Models

namespace Quillmont::Utility::ViewControllers {

/// Where @p config names a file in the Proton prefix of a game, makes its path the way there from
/// the data root. Where the last look for simulators saw no prefix, the path becomes empty.
void findPrefix(Library::Models::XmlConfigModel *config);

} // namespace Quillmont::Utility::ViewControllers

#endif
