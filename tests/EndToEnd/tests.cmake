add_library(orbwell-simulators STATIC EndToEnd/Simulators.cpp EndToEnd/Simulators.h)
target_link_libraries(orbwell-simulators
  PUBLIC orbwell-program-support
  PRIVATE orbwell-options)

foreach(story
    AnyScript BadCatalogue ChosenFolder Closing FirstStart InstallByClick InstallTwice Unattended)
  orbwell_add_test(EndToEnd/${story})
  target_link_libraries(tst_${story} PRIVATE orbwell-simulators)
endforeach()
