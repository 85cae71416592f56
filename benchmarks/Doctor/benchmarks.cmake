orbwell_add_benchmark(Doctor/Doctor)
target_compile_definitions(bench_Doctor PRIVATE ORBWELL_DOCTOR="$<TARGET_FILE:orbwell-doctor>")
add_dependencies(bench_Doctor orbwell-doctor)
