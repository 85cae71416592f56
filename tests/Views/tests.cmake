# The tests of rows share it.
orbwell_add_test_library(orbwell-row-parts Widgets/RowParts.cpp Widgets/RowParts.h)

foreach(class Accessibility Keyboard ScannerView ScannerViewLayout)
  orbwell_add_test(Views/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-row-parts)
endforeach()

# The same on screens that show two pixels for one, or three for two.
foreach(scale 2 1.5)
  orbwell_register_test(Views/ScannerViewLayout-HiDPI-${scale} tst_ScannerViewLayout
    ENVIRONMENT QT_SCALE_FACTOR=${scale})
endforeach()

# The camera of script/pictures.
add_executable(orbwell-take-pictures Views/takePictures.cpp)
target_link_libraries(orbwell-take-pictures
  PRIVATE orbwell-workshop orbwell-row-parts Qt5::Test orbwell-test-options)
target_precompile_headers(orbwell-take-pictures REUSE_FROM orbwell-test-support)
set_target_properties(orbwell-take-pictures PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/bin/orbwell-take-pictures")
