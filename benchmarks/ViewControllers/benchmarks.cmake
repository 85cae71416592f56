orbwell_add_test_library(orbwell-benchmark-simulators
  ViewControllers/Simulators.cpp
  ViewControllers/Simulators.h)
target_link_libraries(orbwell-benchmark-simulators
  PUBLIC orbwell-benchmark-support orbwell-utility)

foreach(class Installation NothingToDo InstallationRecord ScanSession)
  orbwell_add_benchmark(ViewControllers/${class})
  target_link_libraries(bench_${class} PRIVATE orbwell-benchmark-simulators)
endforeach()
