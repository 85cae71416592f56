foreach(class AddonListItem AddonListItemBrowsing AddonListItemDelegate Artwork ResultBox StateIcons)
  orbwell_add_test(Widgets/${class})
  target_link_libraries(tst_${class} PRIVATE orbwell-row-parts)
endforeach()
