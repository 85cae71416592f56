foreach(class CatalogueCheck Plan Report XmlDamage)
  orbwell_add_test(Doctor/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-diagnosis orbwell-computer)
endforeach()
target_sources(tst_Report PRIVATE
  EndToEnd/PilotsHome.cpp EndToEnd/PilotsHome.h
  EndToEnd/Tracer.cpp EndToEnd/Tracer.h)
target_compile_definitions(tst_Report PRIVATE
  ORBWELL_BIN="$<TARGET_FILE_DIR:orbwell-doctor>")
target_link_libraries(tst_Report PRIVATE orbwell-catalogue-support orbwell-documents)
