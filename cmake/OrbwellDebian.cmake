# The Debian package; the tar archive comes from the same tree.
set(CPACK_GENERATOR TGZ)
find_program(DPKG dpkg)
if(NOT DPKG)
  return()
endif()
list(APPEND CPACK_GENERATOR DEB)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS hicolor-icon-theme)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "setup of the Orbwell plugin for flight simulators")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Finds the flight simulators on the computer, shows a row for each, and
installs, repairs or removes the plugin's files and its entry in each
simulator's configuration file. What other add-ons wrote there stays as it
is, and a copy of the file is kept beside it before anything changes.")

# Debian wants every package to say whose it is and what has changed, in its own form.
set(doc "${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_PACKAGE_NAME}")
execute_process(
  COMMAND date --utc --rfc-email "--date=${ORBWELL_RELEASE_DATE}"
  OUTPUT_VARIABLE release_time OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file("${from}/debian/changelog.in" "${made}/changelog" @ONLY)
compressed("${made}/changelog")
configure_file("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${made}/CHANGELOG.md" COPYONLY)
compressed("${made}/CHANGELOG.md")
install(FILES "${from}/debian/copyright" "${made}/changelog.gz" "${made}/CHANGELOG.md.gz"
  DESTINATION "${doc}")

set(overrides "${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides")
install(FILES "${from}/debian/lintian-overrides"
  DESTINATION "${overrides}" RENAME "${CPACK_PACKAGE_NAME}")
# Nothing is bound while the program runs, so that what it calls cannot be redirected.
target_link_options(QuillmontOrbwell PRIVATE LINKER:-z,relro,-z,now)
