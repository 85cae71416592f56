# What the tests of the XML library share.
orbwell_add_test_library(orbwell-xml-test-support
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
target_link_libraries(orbwell-xml-test-support PUBLIC quillmont-library)
set_target_properties(orbwell-xml-test-support PROPERTIES AUTOMOC ON)

orbwell_add_test(Library/Files/FileWriter)
orbwell_add_test(Library/Helpers/FileHelper)
orbwell_add_test(Library/Models/XmlConfigModel)
foreach(class XmlBounds XmlCorpus XmlEncodings XmlFaults XmlHelper XmlProperties)
  orbwell_add_test(Library/Helpers/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-xml-test-support)
endforeach()

# The process that one of them ends again and again.
add_executable(orbwell-xml-edit-tool Library/Helpers/xmlEditTool.cpp)
target_link_libraries(orbwell-xml-edit-tool PRIVATE quillmont-library orbwell-options)
add_dependencies(tst_XmlFaults orbwell-xml-edit-tool)
target_compile_definitions(tst_XmlFaults PRIVATE
  ORBWELL_EDIT_TOOL="$<TARGET_FILE:orbwell-xml-edit-tool>")
