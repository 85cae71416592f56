# How tests, benchmarks and fuzz targets are built and run: one program per class or story.

set(ORBWELL_TEST_TIMEOUT 300 CACHE STRING "Seconds after which a test is taken to hang")

# orbwell_add_program(KIND [FOLDER/]CLASS SOURCE...): the program KIND_CLASS, built from
# FOLDER/KIND_CLASS.cpp and other sources. Each has its own folder, so that what it places beside itself
# (a catalogue, a payload) does not meet another program's.
function(orbwell_add_program kind program)
  get_filename_component(class ${program} NAME)
  set(name ${kind}_${class})
  string(REGEX REPLACE "[^/]+$" "${name}.cpp" source ${program})
  add_executable(${name} ${source} ${ARGN})
  target_link_libraries(${name} PRIVATE orbwell-options)
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/bin/${name}")
endfunction()

# orbwell_register_test(NAME PROGRAM [ARGUMENTS ARGUMENT...] [ENVIRONMENT VARIABLE=VALUE...]): what
# ctest calls NAME. Its label is the target to build before it.
function(orbwell_register_test name program)
  cmake_parse_arguments(PARSE_ARGV 2 run "" "" "ARGUMENTS;ENVIRONMENT")
  add_test(NAME ${name} COMMAND ${program} ${run_ARGUMENTS})
  set_tests_properties(${name} PROPERTIES
    LABELS ${program}
    TIMEOUT ${ORBWELL_TEST_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0;${run_ENVIRONMENT}")
endfunction()
