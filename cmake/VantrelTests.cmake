# Tests, script tests and fuzz targets.

# Seconds. It ends what hangs; on a busy machine the slowest test takes a tenth of it.
set(VANTREL_TEST_TIMEOUT 600)

set(vantrel_nets "${VANTREL_NETS_DIR}")
if(NOT vantrel_nets)
  set(vantrel_nets "$ENV{VANTREL_NETS}")
endif()
if(NOT vantrel_nets AND IS_DIRECTORY ${PROJECT_SOURCE_DIR}/../shared/nets)
  get_filename_component(vantrel_nets ${PROJECT_SOURCE_DIR}/../shared/nets ABSOLUTE)
endif()

# vantrel_add_test(<folder> SOURCES <file>... [LINKS <target>...] [PRECOMPILE <header>...])
#
# One GoogleTest program for a folder of tests/. Its tests see the nets of the field in the folder that the environment variable
# VANTREL_NETS names, and skip where that is not set. tests/ itself is an include directory: "support/Nets.h". PRECOMPILE: further
# heavy headers that most sources include.
function(vantrel_add_test folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS;PRECOMPILE")
  vantrel_refuse_unknown("${arg_UNPARSED_ARGUMENTS}")
  string(REPLACE "/" "_" name ${folder})
  set(target vantrel_test_${name})
  add_executable(${target} ${arg_SOURCES})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME test_${name})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${target} PRIVATE vantrel::warnings ${arg_LINKS} GTest::gmock GTest::gtest_main)
  vantrel_compile_together(${target})
  if(VANTREL_COMPILE_TOGETHER AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)  # g++ takes the compiled-together files for headers
  endif()
  # A test runs once for each time it is compiled: optimising it costs more than it gives. And half of what is left is the test library,
  # which is read once for all of them.
  target_compile_options(${target} PRIVATE -O0)
  set(testing <gmock/gmock.h> <gtest/gtest.h> <memory> <string> <vector>)
  get_property(first GLOBAL PROPERTY VANTREL_FIRST_TEST)
  if(arg_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE ${testing} ${arg_PRECOMPILE})
  elseif(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
  else()
    target_precompile_headers(${target} PRIVATE ${testing})
    set_property(GLOBAL PROPERTY VANTREL_FIRST_TEST ${target})
  endif()

  set(properties LABELS ${name} TIMEOUT ${VANTREL_TEST_TIMEOUT})
  if(vantrel_nets)
    list(APPEND properties ENVIRONMENT "VANTREL_NETS=${vantrel_nets}")
  endif()
  # Listing the tests when they are run, not when they are linked, lets a build finish though a test program cannot start.
  gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT ${VANTREL_TEST_TIMEOUT} PROPERTIES ${properties})
endfunction()

# vantrel_add_script_test(<Subject.Outcome> <script> [<argument>...])
#
# A script that drives the program named by the environment variable VANTREL; it exits with 77 to skip.
function(vantrel_add_script_test name script)
  add_test(NAME ${name} COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/${script} ${ARGN})
  set(environment "VANTREL=$<TARGET_FILE:vantrel>")
  if(vantrel_nets)
    list(APPEND environment "VANTREL_NETS=${vantrel_nets}")
  endif()
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "${environment}" SKIP_RETURN_CODE 77 TIMEOUT ${VANTREL_TEST_TIMEOUT} LABELS e2e)
endfunction()

# vantrel_add_fuzzer(<name> SOURCES <file>... [LINKS <target>...] [CORPUS <folder>])
#
# A libFuzzer program `fuzz_<name>`, part of the target `fuzzers`. With a corpus, a test feeds it every file of it once.
function(vantrel_add_fuzzer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "CORPUS" "SOURCES;LINKS")
  vantrel_refuse_unknown("${arg_UNPARSED_ARGUMENTS}")
  set(target vantrel_fuzz_${name})
  add_executable(${target} ${arg_SOURCES})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME fuzz_${name})
  target_compile_options(${target} PRIVATE -fsanitize=fuzzer)
  target_link_options(${target} PRIVATE -fsanitize=fuzzer)
  target_link_libraries(${target} PRIVATE vantrel::warnings ${arg_LINKS})
  add_dependencies(fuzzers ${target})
  if(arg_CORPUS)
    add_test(NAME Fuzz.${name}SurvivesItsCorpus
      COMMAND ${target} -runs=0 ${CMAKE_CURRENT_SOURCE_DIR}/${arg_CORPUS})
    set_tests_properties(Fuzz.${name}SurvivesItsCorpus PROPERTIES LABELS fuzz TIMEOUT ${VANTREL_TEST_TIMEOUT})
  endif()
endfunction()
