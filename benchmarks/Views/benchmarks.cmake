orbwell_add_benchmark(Views/ScannerView)
target_link_libraries(bench_ScannerView PRIVATE orbwell-plain-rows orbwell-utility)
