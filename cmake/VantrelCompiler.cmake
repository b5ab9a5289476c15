# The language, the warnings, the sanitizers and the compiler cache: what every target of the tree shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
if(NOT DEFINED CMAKE_POSITION_INDEPENDENT_CODE)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)  # a host may link the libraries into a shared object
endif()

if(PROJECT_IS_TOP_LEVEL)
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
  find_program(VANTREL_CCACHE ccache)
  if(VANTREL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without these, it compiles everything anew that uses a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
      ${VANTREL_CCACHE})
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
      add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
    endif()
  endif()
  add_compile_definitions($<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
endif()

add_library(vantrel_warnings INTERFACE)
add_library(vantrel::warnings ALIAS vantrel_warnings)
target_compile_options(vantrel_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wold-style-cast -Wextra-semi -Wimplicit-fallthrough
  # A property is an overloaded pair; overriding one half of it is not a mistake.
  -Wno-overloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(vantrel_warnings INTERFACE -Wshadow=local -Wduplicated-cond -Wlogical-op)
  if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 takes `"text" + std::string` for overlapping memory.
    target_compile_options(vantrel_warnings INTERFACE -Wno-restrict)
  endif()
else()
  target_compile_options(vantrel_warnings INTERFACE -Wshadow -Wreserved-identifier -Wreserved-macro-identifier)
endif()
if(VANTREL_WERROR)
  target_compile_options(vantrel_warnings INTERFACE -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Guesses that come and go with the optimiser's inlining: worth reading, not worth a broken build.
    target_compile_options(vantrel_warnings INTERFACE
      -Wno-error=maybe-uninitialized -Wno-error=use-after-free -Wno-error=free-nonheap-object -Wno-error=array-bounds -Wno-error=stringop-overflow)
  endif()
endif()

if(VANTREL_SANITIZERS)
  # For every target, and not only through an interface: objects with and without checks must not be mixed.
  list(JOIN VANTREL_SANITIZERS "," vantrel_sanitizers)
  add_compile_options(-fsanitize=${vantrel_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${vantrel_sanitizers})
endif()

# Has Qt's meta-object compiler read the target's headers. What it writes uses names that are reserved.
function(vantrel_use_moc target)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/mocs_compilation.cpp
    PROPERTIES COMPILE_OPTIONS -Wno-reserved-identifier)
endfunction()
