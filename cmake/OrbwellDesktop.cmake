# What makes the programs known to a Linux desktop: links on the path, the menu entry with its icons, the
# page in the software centre, the manual pages and the shell completion.
include(OrbwellGeneratedFiles)

# orbwell_install_desktop_files(FOLDER): for the programs that are installed in FOLDER, a full path.
function(orbwell_install_desktop_files folder)
  set(packaging "${PROJECT_SOURCE_DIR}/packaging")
  set(share "${CMAKE_INSTALL_DATAROOTDIR}")

  # Relative, so that the tree can be moved as a whole.
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/packaging")
  foreach(name QuillmontOrbwell orbwell-doctor)
    set(link "${PROJECT_BINARY_DIR}/packaging/${name}")
    file(RELATIVE_PATH program "${CMAKE_INSTALL_FULL_BINDIR}" "${folder}/${name}")
    file(CREATE_LINK "${program}" "${link}" SYMBOLIC)
    install(FILES "${link}" DESTINATION "${CMAKE_INSTALL_BINDIR}")
    orbwell_install_compressed("${packaging}/linux/${name}.1.in" "${CMAKE_INSTALL_MANDIR}/man1")
  endforeach()
  install(FILES "${packaging}/linux/orbwell-doctor.bash"
    DESTINATION "${share}/bash-completion/completions" RENAME orbwell-doctor)

  install(FILES "${packaging}/linux/QuillmontOrbwell.desktop" DESTINATION "${share}/applications")
  install(DIRECTORY "${packaging}/icons/hicolor" DESTINATION "${share}/icons")
  install(FILES "${PROJECT_SOURCE_DIR}/assets/artwork/quillmont-orbwell.svg"
    DESTINATION "${share}/icons/hicolor/scalable/apps")

  orbwell_generate("${packaging}/linux/com.quillmont.orbwell.metainfo.xml.in" metainfo)
  install(FILES "${metainfo}" DESTINATION "${share}/metainfo")
endfunction()
