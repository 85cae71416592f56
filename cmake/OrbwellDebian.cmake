# The Debian package; the tar archive comes from the same tree.
set(CPACK_GENERATOR TGZ)
find_program(ORBWELL_DPKG dpkg)
if(NOT ORBWELL_DPKG)
  return()
endif()
list(APPEND CPACK_GENERATOR DEB)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, qttranslations5-l10n, qtwayland5")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "setup of the Orbwell plugin for flight simulators")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Finds the flight simulators on the computer, shows a row for each, and
installs, repairs or removes the plugin's files and its entry in each
simulator's configuration file. What other add-ons wrote there stays as it
is, and a copy of the file is kept beside it before anything changes.")

# Debian requires copyright and changelog in its own formats.
include(OrbwellGeneratedFiles)
execute_process(
  COMMAND date --utc --rfc-email "--date=${ORBWELL_RELEASE_DATE}"
  OUTPUT_VARIABLE ORBWELL_RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(ORBWELL_DOC_FOLDER "${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_PACKAGE_NAME}")
orbwell_install_compressed("${PROJECT_SOURCE_DIR}/packaging/debian/changelog.in" "${ORBWELL_DOC_FOLDER}")
orbwell_install_compressed("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${ORBWELL_DOC_FOLDER}")
install(FILES "${PROJECT_SOURCE_DIR}/packaging/debian/copyright" DESTINATION "${ORBWELL_DOC_FOLDER}")

install(FILES "${PROJECT_SOURCE_DIR}/packaging/debian/lintian-overrides"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides" RENAME "${CPACK_PACKAGE_NAME}")
# Full RELRO: all symbols are bound at start, so that calls cannot be redirected later.
foreach(program QuillmontOrbwell orbwell-doctor)
  target_link_options(${program} PRIVATE LINKER:-z,relro,-z,now)
endforeach()
