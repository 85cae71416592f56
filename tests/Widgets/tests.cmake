orbwell_add_test(Widgets/AddonListItem Widgets/RowParts.cpp Widgets/RowParts.h)
orbwell_add_test(Widgets/AddonListItemBrowsing Widgets/RowParts.cpp Widgets/RowParts.h)
orbwell_add_test(Widgets/AddonListItemDelegate)
orbwell_add_test(Widgets/StateIcons)
