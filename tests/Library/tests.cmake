# What the tests of the XML library share.
add_library(orbwell-roundtrip STATIC
  Library/Helpers/RoundTrip.cpp
  Library/Helpers/RoundTrip.h)
target_link_libraries(orbwell-roundtrip
  PUBLIC quillmont-library orbwell-test-support
  PRIVATE orbwell-options)

orbwell_add_test(Library/Helpers/XmlCorpus)
target_link_libraries(tst_XmlCorpus PRIVATE orbwell-roundtrip)
target_compile_definitions(tst_XmlCorpus PRIVATE SOURCE_FOLDER="${PROJECT_SOURCE_DIR}")
