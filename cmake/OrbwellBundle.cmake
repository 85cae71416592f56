# The macOS bundle with Qt inside, on a disk image.
set(CPACK_GENERATOR DragNDrop)
set(CPACK_DMG_VOLUME_NAME "Quillmont Orbwell")
set(CPACK_PACKAGE_FILE_NAME "${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}")

set(ORBWELL_ICON "${PROJECT_SOURCE_DIR}/packaging/macos/QuillmontOrbwell.icns")
target_sources(QuillmontOrbwell PRIVATE "${ORBWELL_ICON}")
set_source_files_properties("${ORBWELL_ICON}" PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(QuillmontOrbwell PROPERTIES
  MACOSX_BUNDLE_INFO_PLIST "${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in"
  MACOSX_BUNDLE_GUI_IDENTIFIER com.quillmont.orbwell
  # Qt takes the application's name from here, and derives the paths to the user's files from it.
  MACOSX_BUNDLE_BUNDLE_NAME QuillmontOrbwell
  MACOSX_BUNDLE_BUNDLE_VERSION "${PROJECT_VERSION}"
  MACOSX_BUNDLE_SHORT_VERSION_STRING "${PROJECT_VERSION}"
  MACOSX_BUNDLE_ICON_FILE QuillmontOrbwell.icns)

get_target_property(ORBWELL_QMAKE Qt5::qmake IMPORTED_LOCATION)
get_filename_component(ORBWELL_QT_TOOLS "${ORBWELL_QMAKE}" DIRECTORY)
find_program(ORBWELL_MACDEPLOYQT macdeployqt HINTS "${ORBWELL_QT_TOOLS}" REQUIRED)
install(CODE "
  execute_process(
    COMMAND \"${ORBWELL_MACDEPLOYQT}\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/QuillmontOrbwell.app\"
      \"-executable=\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${ORBWELL_PROGRAM_FOLDER}/orbwell-doctor\"
    COMMAND_ERROR_IS_FATAL ANY)")
