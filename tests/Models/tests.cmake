orbwell_add_test(Models/FileOperation)
orbwell_add_test(Models/FlightSimConflict)
orbwell_add_test(Models/FlightSimRemoval)
orbwell_add_test(Models/FlightSimScan)
orbwell_add_test(Models/FlightSimulatorMapping
  Models/LookedUpPaths.cpp Models/LookedUpPaths.h)
