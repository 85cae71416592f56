orbwell_add_test_library(orbwell-simulators EndToEnd/Simulators.cpp EndToEnd/Simulators.h)
target_link_libraries(orbwell-simulators PUBLIC orbwell-program-support)

foreach(story
    ActionLog AnyScript BadCatalogue ChosenFolder Closing FirstStart InstallByClick InstallTwice
    TakingTurns TwoAtOnce)
  orbwell_add_test(EndToEnd/${story})
  target_link_libraries(tst_${story} PRIVATE orbwell-simulators)
endforeach()

orbwell_add_test(EndToEnd/Languages)
target_link_libraries(tst_Languages PRIVATE orbwell-simulators orbwell-documents)
orbwell_add_test(EndToEnd/PilotsComputer
  EndToEnd/Mounts.cpp EndToEnd/Mounts.h
  EndToEnd/PilotsHome.cpp EndToEnd/PilotsHome.h)
target_link_libraries(tst_PilotsComputer PRIVATE orbwell-simulators orbwell-catalogue-support)
orbwell_add_test(EndToEnd/ForeignConfigurations)
target_link_libraries(tst_ForeignConfigurations
  PRIVATE orbwell-simulators orbwell-xml-test-support)

orbwell_add_test_library(orbwell-computer
  EndToEnd/Bookkeeping.cpp EndToEnd/Bookkeeping.h
  EndToEnd/Computer.cpp EndToEnd/Computer.h
  EndToEnd/Disk.cpp EndToEnd/Disk.h
  EndToEnd/DoctorsPlan.cpp EndToEnd/DoctorsPlan.h)
target_compile_definitions(orbwell-computer PRIVATE ORBWELL_DOCTOR="$<TARGET_FILE:orbwell-doctor>")
add_dependencies(orbwell-computer orbwell-doctor)
target_link_libraries(orbwell-computer PUBLIC orbwell-simulators)

foreach(story
    CommandLine HostileData RandomSequences ScanAndInstall Unattended UnattendedBadInput
    UnattendedDetails UnattendedFailures UnattendedOnAScreen UnattendedSimulators UninstallByClick
    UserFolders)
  orbwell_add_test(EndToEnd/${story})
  target_link_libraries(tst_${story} PRIVATE orbwell-computer)
endforeach()

# Where screen readers talk to programs over a bus of their own.
if(NOT APPLE)
  orbwell_add_test(EndToEnd/ScreenReader)
  target_link_libraries(tst_ScreenReader PRIVATE orbwell-simulators)
endif()

orbwell_add_test(EndToEnd/RealConditions EndToEnd/Mounts.cpp EndToEnd/Mounts.h)
target_link_libraries(tst_RealConditions PRIVATE orbwell-computer)
orbwell_add_test(EndToEnd/Faults
  EndToEnd/DisturbedComputer.cpp EndToEnd/DisturbedComputer.h
  EndToEnd/Tracer.cpp EndToEnd/Tracer.h)
target_link_libraries(tst_Faults PRIVATE orbwell-computer)
