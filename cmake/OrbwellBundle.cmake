# The macOS bundle with the toolkit inside, on a disk image.
set(CPACK_GENERATOR DragNDrop)
set(CPACK_DMG_VOLUME_NAME "Quillmont Orbwell")
set(CPACK_PACKAGE_FILE_NAME "${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}")

set(icon "${PROJECT_SOURCE_DIR}/packaging/macos/QuillmontOrbwell.icns")
target_sources(QuillmontOrbwell PRIVATE "${icon}")
set_source_files_properties("${icon}" PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(QuillmontOrbwell PROPERTIES
  MACOSX_BUNDLE_INFO_PLIST "${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in"
  MACOSX_BUNDLE_GUI_IDENTIFIER com.quillmont.orbwell
  # The toolkit takes the application's name from here, and the paths to the user's files from that.
  MACOSX_BUNDLE_BUNDLE_NAME QuillmontOrbwell
  MACOSX_BUNDLE_BUNDLE_VERSION "${PROJECT_VERSION}"
  MACOSX_BUNDLE_SHORT_VERSION_STRING "${PROJECT_VERSION}"
  MACOSX_BUNDLE_ICON_FILE QuillmontOrbwell.icns)

get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
get_filename_component(qt_tools "${qmake}" DIRECTORY)
find_program(MACDEPLOYQT macdeployqt HINTS "${qt_tools}" REQUIRED)
install(CODE "
  execute_process(
    COMMAND \"${MACDEPLOYQT}\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/QuillmontOrbwell.app\"
    COMMAND_ERROR_IS_FATAL ANY)")
