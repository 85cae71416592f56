# What the tests of the XML library share.
add_library(orbwell-xml-test-support STATIC
  Library/Helpers/RoundTrip.cpp
  Library/Helpers/RoundTrip.h
  Library/Helpers/XmlEditTest.cpp
  Library/Helpers/XmlEditTest.h)
target_link_libraries(orbwell-xml-test-support
  PUBLIC quillmont-library orbwell-test-support
  PRIVATE orbwell-options)
target_compile_definitions(orbwell-xml-test-support
  PUBLIC SOURCE_FOLDER="${PROJECT_SOURCE_DIR}")
set_target_properties(orbwell-xml-test-support PROPERTIES AUTOMOC ON)

orbwell_add_test(Library/Models/XmlConfigModel)
foreach(class XmlBounds XmlCorpus XmlEncodings XmlHelper)
  orbwell_add_test(Library/Helpers/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-xml-test-support)
endforeach()
