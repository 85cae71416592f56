# Every fault of the list still has its place; script/mutants itself takes an hour.
find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
  add_test(NAME Mutants/List
    COMMAND ${Python3_EXECUTABLE} "${PROJECT_SOURCE_DIR}/script/mutants" --check)
endif()
