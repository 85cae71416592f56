# Tells that a window has been painted, from inside any program.
add_library(orbwell-first-paint MODULE
  Start/firstPaint/FirstPaint.cpp
  Start/firstPaint/FirstPaint.h
  Start/firstPaint/FirstPaintPlugin.cpp
  Start/firstPaint/FirstPaintPlugin.h)
target_include_directories(orbwell-first-paint PRIVATE "${PROJECT_SOURCE_DIR}")
target_link_libraries(orbwell-first-paint PRIVATE Qt5::Gui orbwell-options)
set_target_properties(orbwell-first-paint PROPERTIES
  AUTOMOC ON
  LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/benchmarks/plugins/generic")

add_executable(orbwell-plain-window Start/plainWindow.cpp)
target_link_libraries(orbwell-plain-window PRIVATE orbwell-plain-rows orbwell-options)

orbwell_add_benchmark(Start/Start)
target_link_libraries(bench_Start PRIVATE orbwell-program-support)
target_compile_definitions(bench_Start PRIVATE
  ORBWELL_PROGRAM="$<TARGET_FILE:QuillmontOrbwell>"
  ORBWELL_PLAIN_WINDOW="$<TARGET_FILE:orbwell-plain-window>"
  ORBWELL_BENCHMARK_PLUGINS="${PROJECT_BINARY_DIR}/benchmarks/plugins")
add_dependencies(bench_Start QuillmontOrbwell orbwell-first-paint orbwell-plain-window)
