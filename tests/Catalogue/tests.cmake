orbwell_add_test_library(orbwell-catalogue-support
  Catalogue/CatalogueSchema.cpp
  Catalogue/CatalogueSchema.h
  Catalogue/Catalogues.cpp
  Catalogue/Catalogues.h)

foreach(subject Schema ShippedCatalogue WorkedExample)
  orbwell_add_test(Catalogue/${subject})
  target_link_libraries(tst_${subject} PRIVATE orbwell-catalogue-support)
endforeach()
target_link_libraries(tst_ShippedCatalogue PRIVATE orbwell-simdetect-test-support)
target_link_libraries(tst_WorkedExample PRIVATE orbwell-program-support)
