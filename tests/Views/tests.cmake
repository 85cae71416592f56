orbwell_add_test(Views/Accessibility Widgets/RowParts.cpp Widgets/RowParts.h)
orbwell_add_test(Views/Keyboard Widgets/RowParts.cpp Widgets/RowParts.h)
orbwell_add_test(Views/ScannerView Widgets/RowParts.cpp Widgets/RowParts.h)
orbwell_add_test(Views/ScannerViewLayout Widgets/RowParts.cpp Widgets/RowParts.h)

# The same on screens that show two pixels for one, or three for two.
foreach(scale 2 1.5)
  add_test(NAME Views/ScannerViewLayout-HiDPI-${scale} COMMAND tst_ScannerViewLayout)
  set_tests_properties(Views/ScannerViewLayout-HiDPI-${scale} PROPERTIES
    TIMEOUT ${ORBWELL_TEST_TIMEOUT}
    ENVIRONMENT "${orbwell_test_environment};QT_SCALE_FACTOR=${scale}")
endforeach()

# The camera of script/pictures.
add_executable(take-pictures
  Views/takePictures.cpp Widgets/RowParts.cpp Widgets/RowParts.h)
target_link_libraries(take-pictures PRIVATE orbwell-workshop Qt5::Test orbwell-options)
set_target_properties(take-pictures PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/bin/take-pictures")
