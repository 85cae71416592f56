orbwell_add_test_library(orbwell-simdetect-test-support
  SimDetect/Cases.cpp
  SimDetect/Cases.h
  SimDetect/DescribedComputer.cpp
  SimDetect/DescribedComputer.h)
target_link_libraries(orbwell-simdetect-test-support PUBLIC quillmont-simdetect)

foreach(class FlightGear MsfsPackages SimDetect Steam TextFormat XPlane Robustness)
  orbwell_add_test(SimDetect/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-simdetect-test-support)
endforeach()
