# How every target of this project is compiled. Nothing here reaches a project that links to them.
add_library(orbwell-options INTERFACE)
target_compile_options(orbwell-options INTERFACE
  -Wall -Wextra -Wpedantic
  $<$<BOOL:${ORBWELL_WARNINGS_AS_ERRORS}>:-Werror>
  # Qt's logging macros end in an empty variadic argument.
  $<$<CXX_COMPILER_ID:Clang,AppleClang>:-Wno-gnu-zero-variadic-macro-arguments>)
target_compile_definitions(orbwell-options INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_FOREACH
  QT_NO_JAVA_STYLE_ITERATORS
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_STRICT_ITERATORS
  QT_DISABLE_DEPRECATED_BEFORE=0x050f00)

# The faster linker for debug builds, which developers wait for; releases use the compiler's default.
if(CMAKE_BUILD_TYPE STREQUAL Debug)
  include(CheckLinkerFlag)
  check_linker_flag(CXX -fuse-ld=lld ORBWELL_HAS_LLD)
  if(ORBWELL_HAS_LLD)
    target_link_options(orbwell-options INTERFACE -fuse-ld=lld)
  endif()
endif()

if(ORBWELL_SANITIZE)
  set(ORBWELL_SANITIZE_OPTIONS
    -fsanitize=${ORBWELL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(orbwell-options INTERFACE ${ORBWELL_SANITIZE_OPTIONS})
  target_link_options(orbwell-options INTERFACE ${ORBWELL_SANITIZE_OPTIONS})
endif()

if(ORBWELL_COVERAGE)
  target_compile_options(orbwell-options INTERFACE --coverage)
  target_link_options(orbwell-options INTERFACE --coverage)
endif()

if(ORBWELL_FUZZ)
  target_compile_options(orbwell-options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# orbwell_add_library(NAME SOURCE...): a static library of the sources in this folder. Headers are included
# from the root of the tree, but targets that link to it see only this folder and those of the libraries
# that it links to: an include of something further up does not compile.
function(orbwell_add_library name)
  file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
  set(visible "${PROJECT_BINARY_DIR}/include/${name}")
  get_filename_component(above "${visible}/${folder}" DIRECTORY)
  file(MAKE_DIRECTORY "${above}")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${visible}/${folder}" SYMBOLIC)

  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC "${visible}")
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:orbwell-options>)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()
