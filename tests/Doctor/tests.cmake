foreach(class Plan Report XmlDamage)
  orbwell_add_test(Doctor/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-diagnosis orbwell-computer)
endforeach()
