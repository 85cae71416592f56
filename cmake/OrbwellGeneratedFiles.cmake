# Files to install that are made while the build is configured.
include_guard()
find_program(ORBWELL_GZIP gzip REQUIRED)

# orbwell_generate(TEMPLATE OUTPUT-VARIABLE): TEMPLATE with its @VARIABLES@ filled in, without ".in".
function(orbwell_generate template output)
  get_filename_component(name "${template}" NAME)
  string(REGEX REPLACE "[.]in$" "" name "${name}")
  set(file "${PROJECT_BINARY_DIR}/packaging/${name}")
  configure_file("${template}" "${file}" @ONLY)
  set(${output} "${file}" PARENT_SCOPE)
endfunction()

# orbwell_install_compressed(TEMPLATE FOLDER): the same as a .gz, with the same bytes whenever it is made.
function(orbwell_install_compressed template folder)
  orbwell_generate("${template}" file)
  execute_process(
    COMMAND "${ORBWELL_GZIP}" -9nc "${file}" OUTPUT_FILE "${file}.gz" COMMAND_ERROR_IS_FATAL ANY)
  install(FILES "${file}.gz" DESTINATION "${folder}")
endfunction()
