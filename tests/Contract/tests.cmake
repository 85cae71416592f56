# What other programs rely on.
orbwell_add_test(Contract/Contract Contract/LookedUpPaths.cpp Contract/LookedUpPaths.h)
target_link_libraries(tst_Contract PRIVATE orbwell-workshop)
