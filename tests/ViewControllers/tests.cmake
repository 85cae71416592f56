orbwell_add_test_library(orbwell-workshop
  ViewControllers/Workshop.cpp
  ViewControllers/Workshop.h)
target_link_libraries(orbwell-workshop PUBLIC orbwell-utility)

foreach(class
    AutoInstallation
    ConfigurationFile
    ConflictResolution
    Detection
    Installation
    InstallationRecord
    Rescans
    ScanController
    ScanSession
    SteamPrefix
    TextFiles
    Uninstallation
    WorkProgress)
  orbwell_add_test(ViewControllers/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-workshop)
endforeach()
target_link_libraries(tst_Rescans PRIVATE orbwell-catalogue-support)
