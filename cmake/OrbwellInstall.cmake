# What cmake --install places. The program looks for the catalogue and the payload beside itself, so
# the three stay together, and so does orbwell-doctor; on Linux, links in the folder of programs lead
# there. A link has the program's own name, since the program removes the name that it is started under
# from the paths to the user's files.
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

include(GNUInstallDirs)

# The change log's heading for this version has the date of its release.
file(STRINGS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" ORBWELL_RELEASE_DATE
  REGEX "^## ${PROJECT_VERSION} - " LIMIT_COUNT 1)
string(REGEX MATCH "[0-9]+-[0-9]+-[0-9]+$" ORBWELL_RELEASE_DATE "${ORBWELL_RELEASE_DATE}")
if(NOT ORBWELL_RELEASE_DATE)
  message(FATAL_ERROR "CHANGELOG.md has no heading \"## ${PROJECT_VERSION} - YEAR-MONTH-DAY\".")
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/CHANGELOG.md")

if(APPLE)
  set(ORBWELL_PROGRAM_FOLDER "QuillmontOrbwell.app/Contents/MacOS")
else()
  set(ORBWELL_PROGRAM_FOLDER "${CMAKE_INSTALL_LIBDIR}/quillmont-orbwell")
  include(OrbwellDesktop)
  orbwell_install_desktop_files("${CMAKE_INSTALL_FULL_LIBDIR}/quillmont-orbwell")
endif()

install(TARGETS QuillmontOrbwell orbwell-doctor
  RUNTIME DESTINATION "${ORBWELL_PROGRAM_FOLDER}"
  BUNDLE DESTINATION .)
install(FILES "${PROJECT_SOURCE_DIR}/catalogue/flightsims.json" DESTINATION "${ORBWELL_PROGRAM_FOLDER}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/sample/plugins/" DESTINATION "${ORBWELL_PROGRAM_FOLDER}/plugins")
