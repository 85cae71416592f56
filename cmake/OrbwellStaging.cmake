# The runnable folder: the catalogue and the payload beside the executable, where the program
# looks for them.
set(staging "${PROJECT_BINARY_DIR}/bin")
if(APPLE)
  set(staging "${staging}/QuillmontOrbwell.app/Contents/MacOS")
endif()
set(catalogue "${PROJECT_SOURCE_DIR}/catalogue/flightsims.json")
set(payload "${PROJECT_SOURCE_DIR}/sample/plugins")

# A file that leaves the payload changes nothing that is left of it; the list of names does change.
file(GLOB_RECURSE payload_files CONFIGURE_DEPENDS "${payload}/*")
set(payload_list "${PROJECT_BINARY_DIR}/payload-files.txt")
list(JOIN payload_files "\n" payload_names)
file(CONFIGURE OUTPUT "${payload_list}" CONTENT "@payload_names@\n" @ONLY)

add_custom_command(
  OUTPUT "${staging}/flightsims.json"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${staging}/plugins"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${payload}" "${staging}/plugins"
  COMMAND "${CMAKE_COMMAND}" -E copy "${catalogue}" "${staging}/flightsims.json"
  COMMAND "${CMAKE_COMMAND}" -E touch "${staging}/flightsims.json"
  DEPENDS "${catalogue}" "${payload_list}" ${payload_files}
  COMMENT "Placing the catalogue and the payload beside the program"
  VERBATIM)
add_custom_target(orbwell-staging DEPENDS "${staging}/flightsims.json")
add_dependencies(QuillmontOrbwell orbwell-staging)
