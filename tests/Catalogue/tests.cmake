add_library(orbwell-catalogue-support STATIC
  Catalogue/CatalogueSchema.cpp
  Catalogue/CatalogueSchema.h
  Catalogue/Catalogues.cpp
  Catalogue/Catalogues.h)
target_compile_definitions(orbwell-catalogue-support PRIVATE
  ORBWELL_SOURCE="${PROJECT_SOURCE_DIR}")
target_link_libraries(orbwell-catalogue-support
  PUBLIC orbwell-test-support
  PRIVATE orbwell-options)

foreach(subject Schema ShippedCatalogue WorkedExample)
  orbwell_add_test(Catalogue/${subject})
  target_link_libraries(tst_${subject} PRIVATE orbwell-catalogue-support)
endforeach()
target_link_libraries(tst_ShippedCatalogue PRIVATE simdetect-test-support)
target_link_libraries(tst_WorkedExample PRIVATE orbwell-program-support)
target_compile_definitions(tst_WorkedExample PRIVATE
  ORBWELL_GUIDE="${PROJECT_SOURCE_DIR}/docs/catalogue.md")
