# The runnable folder: the catalogue and the payload beside the executable, where the program
# looks for them.
set(ORBWELL_RUNNABLE_FOLDER "${PROJECT_BINARY_DIR}/bin")
if(APPLE)
  string(APPEND ORBWELL_RUNNABLE_FOLDER "/QuillmontOrbwell.app/Contents/MacOS")
endif()

# orbwell_add_staging(TARGET CATALOGUE PAYLOAD FOLDER): TARGET places both in FOLDER.
function(orbwell_add_staging target catalogue payload folder)
  # When a file is removed from the payload, no remaining file changes, but this list of names does.
  file(GLOB_RECURSE payload_files CONFIGURE_DEPENDS "${payload}/*")
  set(payload_list "${PROJECT_BINARY_DIR}/payload-files.txt")
  list(JOIN payload_files "\n" payload_names)
  file(CONFIGURE OUTPUT "${payload_list}" CONTENT "@payload_names@\n" @ONLY)

  add_custom_command(
    OUTPUT "${folder}/flightsims.json"
    COMMAND "${CMAKE_COMMAND}" -E rm -rf "${folder}/plugins"
    COMMAND "${CMAKE_COMMAND}" -E copy_directory "${payload}" "${folder}/plugins"
    COMMAND "${CMAKE_COMMAND}" -E copy "${catalogue}" "${folder}/flightsims.json"
    COMMAND "${CMAKE_COMMAND}" -E touch "${folder}/flightsims.json"
    DEPENDS "${catalogue}" "${payload_list}" ${payload_files}
    COMMENT "Placing the catalogue and the payload beside the program"
    VERBATIM)
  add_custom_target(${target} DEPENDS "${folder}/flightsims.json")
endfunction()

orbwell_add_staging(orbwell-staging
  "${PROJECT_SOURCE_DIR}/catalogue/flightsims.json"
  "${PROJECT_SOURCE_DIR}/sample/plugins"
  "${ORBWELL_RUNNABLE_FOLDER}")
add_dependencies(QuillmontOrbwell orbwell-staging)
add_dependencies(orbwell-doctor orbwell-staging)
set_target_properties(orbwell-doctor PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY "${ORBWELL_RUNNABLE_FOLDER}")
