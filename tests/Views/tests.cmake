orbwell_add_test(Views/Accessibility Widgets/RowParts.cpp Widgets/RowParts.h)
orbwell_add_test(Views/Keyboard Widgets/RowParts.cpp Widgets/RowParts.h)
orbwell_add_test(Views/ScannerView Widgets/RowParts.cpp Widgets/RowParts.h)
orbwell_add_test(Views/ScannerViewLayout Widgets/RowParts.cpp Widgets/RowParts.h)

# The same on a screen that shows two pixels for one.
add_test(NAME Views/ScannerViewLayout-HiDPI COMMAND tst_ScannerViewLayout)
set_tests_properties(Views/ScannerViewLayout-HiDPI PROPERTIES
  TIMEOUT 300
  ENVIRONMENT "${orbwell_test_environment};QT_SCALE_FACTOR=2")
