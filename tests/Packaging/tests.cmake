# macOS has neither this tree nor this package.
if(APPLE)
  return()
endif()

foreach(story InstalledTree Packages)
  orbwell_add_test(Packaging/${story})
  target_compile_definitions(tst_${story} PRIVATE
    ORBWELL_BUILD="${PROJECT_BINARY_DIR}"
    ORBWELL_CMAKE="${CMAKE_COMMAND}"
    ORBWELL_CPACK="${CMAKE_CPACK_COMMAND}"
    ORBWELL_LIBDIR="${CMAKE_INSTALL_LIBDIR}"
    ORBWELL_VERSION="${PROJECT_VERSION}")
  add_dependencies(tst_${story} QuillmontOrbwell orbwell-doctor)
endforeach()
# Both leave a list of what they installed in the build folder.
set_tests_properties(Packaging/InstalledTree Packaging/Packages PROPERTIES
  RESOURCE_LOCK orbwell-install-manifest)
