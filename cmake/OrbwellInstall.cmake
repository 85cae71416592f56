# The program looks for the catalogue and the payload beside itself, so the three stay together;
# on Linux a link in the folder of programs leads there.
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

include(GNUInstallDirs)
if(APPLE)
  set(together "QuillmontOrbwell.app/Contents/MacOS")
else()
  set(together "${CMAKE_INSTALL_LIBDIR}/quillmont-orbwell")
  file(RELATIVE_PATH link_target
    "${CMAKE_INSTALL_FULL_BINDIR}"
    "${CMAKE_INSTALL_FULL_LIBDIR}/quillmont-orbwell/QuillmontOrbwell")
  set(link "${PROJECT_BINARY_DIR}/link/QuillmontOrbwell")
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/link")
  file(CREATE_LINK "${link_target}" "${link}" SYMBOLIC)
  install(FILES "${link}" DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

install(TARGETS QuillmontOrbwell
  RUNTIME DESTINATION "${together}"
  BUNDLE DESTINATION .)
install(FILES "${PROJECT_SOURCE_DIR}/catalogue/flightsims.json" DESTINATION "${together}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/sample/plugins/" DESTINATION "${together}/plugins")
