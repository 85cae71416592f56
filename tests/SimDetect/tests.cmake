add_library(simdetect-test-support STATIC
  SimDetect/Cases.cpp
  SimDetect/Cases.h
  SimDetect/DescribedComputer.cpp
  SimDetect/DescribedComputer.h)
target_link_libraries(simdetect-test-support
  PUBLIC quillmont-simdetect orbwell-test-support Qt5::Test
  PRIVATE orbwell-options)

foreach(class FlightGear MsfsPackages SimDetect Steam TextFormat XPlane Robustness)
  orbwell_add_test(SimDetect/${class})
  target_link_libraries(tst_${class} PRIVATE simdetect-test-support)
endforeach()
