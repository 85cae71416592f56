# What a Linux desktop knows the program by: the launcher on the path, the entry in the menu with its
# icons, the page in the software centre and the manual page.
set(made "${PROJECT_BINARY_DIR}/packaging")
set(from "${PROJECT_SOURCE_DIR}/packaging")
set(share "${CMAKE_INSTALL_DATAROOTDIR}")
file(MAKE_DIRECTORY "${made}")

# Relative, so that the tree can be moved as a whole.
file(RELATIVE_PATH program
  "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}/quillmont-orbwell/QuillmontOrbwell")
file(CREATE_LINK "${program}" "${made}/QuillmontOrbwell" SYMBOLIC)
install(FILES "${made}/QuillmontOrbwell" DESTINATION "${CMAKE_INSTALL_BINDIR}")

install(FILES "${from}/linux/QuillmontOrbwell.desktop" DESTINATION "${share}/applications")
install(DIRECTORY "${from}/icons/hicolor" DESTINATION "${share}/icons")
install(FILES "${PROJECT_SOURCE_DIR}/assets/artwork/quillmont-orbwell.svg"
  DESTINATION "${share}/icons/hicolor/scalable/apps")

set(metainfo com.quillmont.orbwell.metainfo.xml)
configure_file("${from}/linux/${metainfo}.in" "${made}/${metainfo}" @ONLY)
install(FILES "${made}/${metainfo}" DESTINATION "${share}/metainfo")

# compressed(FILE): FILE.gz, the same bytes whenever it is made.
find_program(GZIP gzip REQUIRED)
function(compressed file)
  execute_process(COMMAND "${GZIP}" -9nc "${file}" OUTPUT_FILE "${file}.gz" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

configure_file("${from}/linux/QuillmontOrbwell.1.in" "${made}/QuillmontOrbwell.1" @ONLY)
compressed("${made}/QuillmontOrbwell.1")
install(FILES "${made}/QuillmontOrbwell.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
