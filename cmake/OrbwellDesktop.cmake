# What a Linux desktop knows the program by: the launcher on the path, the entry in the menu with its
# icons, the page in the software centre and the manual page.
include(OrbwellGeneratedFiles)

# orbwell_install_desktop_files(FOLDER): for the program that is installed in FOLDER, a full path.
function(orbwell_install_desktop_files folder)
  set(packaging "${PROJECT_SOURCE_DIR}/packaging")
  set(share "${CMAKE_INSTALL_DATAROOTDIR}")

  # Relative, so that the tree can be moved as a whole.
  set(link "${PROJECT_BINARY_DIR}/packaging/QuillmontOrbwell")
  file(RELATIVE_PATH program
    "${CMAKE_INSTALL_FULL_BINDIR}" "${folder}/QuillmontOrbwell")
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/packaging")
  file(CREATE_LINK "${program}" "${link}" SYMBOLIC)
  install(FILES "${link}" DESTINATION "${CMAKE_INSTALL_BINDIR}")

  install(FILES "${packaging}/linux/QuillmontOrbwell.desktop" DESTINATION "${share}/applications")
  install(DIRECTORY "${packaging}/icons/hicolor" DESTINATION "${share}/icons")
  install(FILES "${PROJECT_SOURCE_DIR}/assets/artwork/quillmont-orbwell.svg"
    DESTINATION "${share}/icons/hicolor/scalable/apps")

  orbwell_generate("${packaging}/linux/com.quillmont.orbwell.metainfo.xml.in" metainfo)
  install(FILES "${metainfo}" DESTINATION "${share}/metainfo")
  orbwell_install_compressed(
    "${packaging}/linux/QuillmontOrbwell.1.in" "${CMAKE_INSTALL_MANDIR}/man1")
endfunction()
