add_library(orbwell-workshop STATIC
  ViewControllers/Workshop.cpp
  ViewControllers/Workshop.h)
target_link_libraries(orbwell-workshop
  PUBLIC orbwell-utility orbwell-test-support
  PRIVATE orbwell-options)

foreach(class
    AutoInstallation
    ConfigurationFile
    ConflictResolution
    Detection
    Installation
    InstallationRecord
    Rescans
    ResultBox
    ScanController
    ScanSession
    SteamPrefix
    TextFiles
    Uninstallation)
  orbwell_add_test(ViewControllers/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-workshop)
endforeach()
target_link_libraries(tst_Rescans PRIVATE orbwell-catalogue-support)
