find_package(benchmark REQUIRED)

# vantrel_add_bench(<name> SOURCES <file>... [LINKS <target>...])
#
# A Google Benchmark program `bench_<name>`. Tests never run it: a time proves nothing on a shared machine, a ratio within one run does.
function(vantrel_add_bench name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  vantrel_refuse_unknown("${arg_UNPARSED_ARGUMENTS}")
  add_executable(vantrel_bench_${name} ${arg_SOURCES})
  set_target_properties(vantrel_bench_${name} PROPERTIES OUTPUT_NAME bench_${name})
  target_link_libraries(vantrel_bench_${name} PRIVATE vantrel::warnings ${arg_LINKS} benchmark::benchmark_main)
endfunction()
