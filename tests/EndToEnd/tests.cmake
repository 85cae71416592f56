add_library(orbwell-simulators STATIC EndToEnd/Simulators.cpp EndToEnd/Simulators.h)
target_link_libraries(orbwell-simulators
  PUBLIC orbwell-program-support
  PRIVATE orbwell-options)

foreach(story FirstStart InstallByClick)
  orbwell_add_test(EndToEnd/${story})
  target_link_libraries(tst_${story} PRIVATE orbwell-simulators)
endforeach()

orbwell_add_test(EndToEnd/PilotsComputer EndToEnd/PilotsHome.cpp EndToEnd/PilotsHome.h)
target_link_libraries(tst_PilotsComputer PRIVATE orbwell-simulators orbwell-catalogue-support)
