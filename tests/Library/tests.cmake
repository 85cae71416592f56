# What the tests of the XML library share.
add_library(orbwell-xml-test-support STATIC
  Library/Helpers/Corpus.cpp
  Library/Helpers/Corpus.h
  Library/Helpers/RoundTrip.cpp
  Library/Helpers/RoundTrip.h
  Library/Helpers/XmlEditTest.cpp
  Library/Helpers/XmlEditTest.h
  Library/Helpers/XmlGenerator.cpp
  Library/Helpers/XmlGenerator.h
  Library/Helpers/XmlPromises.cpp
  Library/Helpers/XmlPromises.h)
target_link_libraries(orbwell-xml-test-support
  PUBLIC quillmont-library orbwell-test-support
  PRIVATE orbwell-options)
target_compile_definitions(orbwell-xml-test-support
  PUBLIC SOURCE_FOLDER="${PROJECT_SOURCE_DIR}")
set_target_properties(orbwell-xml-test-support PROPERTIES AUTOMOC ON)

orbwell_add_test(Library/Helpers/FileHelper)
orbwell_add_test(Library/Helpers/FileWriter)
orbwell_add_test(Library/Models/XmlConfigModel)
foreach(class XmlBounds XmlCorpus XmlEncodings XmlFaults XmlHelper XmlProperties)
  orbwell_add_test(Library/Helpers/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-xml-test-support)
endforeach()

# The process that one of them ends again and again.
add_executable(xml-edit-tool Library/Helpers/xmlEditTool.cpp)
target_link_libraries(xml-edit-tool PRIVATE quillmont-library orbwell-options)
add_dependencies(tst_XmlFaults xml-edit-tool)
target_compile_definitions(tst_XmlFaults PRIVATE
  EDIT_TOOL="$<TARGET_FILE:xml-edit-tool>")
