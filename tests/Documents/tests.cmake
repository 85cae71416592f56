get_target_property(ORBWELL_QMAKE Qt5::qmake IMPORTED_LOCATION)
get_filename_component(ORBWELL_QT_TOOLS "${ORBWELL_QMAKE}" DIRECTORY)
find_program(ORBWELL_LUPDATE lupdate HINTS "${ORBWELL_QT_TOOLS}")

orbwell_add_test_library(orbwell-documents
  Documents/Document.cpp
  Documents/Document.h
  Documents/TextList.cpp
  Documents/TextList.h
  Documents/TranslatedTexts.cpp
  Documents/TranslatedTexts.h)
target_compile_definitions(orbwell-documents PUBLIC ORBWELL_LUPDATE="${ORBWELL_LUPDATE}")

foreach(story Architecture Links Messages Texts Translations)
  orbwell_add_test(Documents/${story})
  target_link_libraries(tst_${story} PRIVATE orbwell-documents)
endforeach()
target_compile_definitions(tst_Architecture PRIVATE
  ORBWELL_BUILD="${PROJECT_BINARY_DIR}"
  ORBWELL_COMPILER="${CMAKE_CXX_COMPILER}")

# The commands are written for Linux.
if(NOT APPLE)
  orbwell_add_test(Documents/Commands)
  target_compile_definitions(tst_Commands PRIVATE ORBWELL_PROGRAM="$<TARGET_FILE:QuillmontOrbwell>")
  add_dependencies(tst_Commands orbwell-doctor)
  target_link_libraries(tst_Commands PRIVATE orbwell-documents orbwell-program-support)
endif()
