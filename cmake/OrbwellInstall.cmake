# What cmake --install places. The program looks for the catalogue and the payload beside itself, so
# the three stay together; on Linux a link in the folder of programs leads there. The link has the
# program's own name, since the program takes that name out of the paths to the user's files.
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

include(GNUInstallDirs)

# The newest heading of the change log says when this version came out.
file(STRINGS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" release REGEX "^## ${PROJECT_VERSION} - " LIMIT_COUNT 1)
string(REGEX MATCH "[0-9]+-[0-9]+-[0-9]+$" ORBWELL_RELEASE_DATE "${release}")
if(NOT ORBWELL_RELEASE_DATE)
  message(FATAL_ERROR "CHANGELOG.md has no heading \"## ${PROJECT_VERSION} - YEAR-MONTH-DAY\".")
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/CHANGELOG.md")

if(APPLE)
  set(together "QuillmontOrbwell.app/Contents/MacOS")
else()
  set(together "${CMAKE_INSTALL_LIBDIR}/quillmont-orbwell")
  include(OrbwellDesktop)
endif()

install(TARGETS QuillmontOrbwell
  RUNTIME DESTINATION "${together}"
  BUNDLE DESTINATION .)
install(FILES "${PROJECT_SOURCE_DIR}/catalogue/flightsims.json" DESTINATION "${together}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/sample/plugins/" DESTINATION "${together}/plugins")
