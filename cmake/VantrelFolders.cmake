# One folder of src/ is one target. Also the package that installs them.

# A package found in one folder serves the tests and programs that link the folder's library.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)

# vantrel_add_library(<folder> SOURCES <file>... [PUBLIC_HEADERS <file>...] [DETAIL_HEADERS <file>...] [HEADERS <file>...]
#                     [LINKS <target>...] [PACKAGES <package>... PRIVATE_LINKS <target>...] [PRECOMPILE <header>...] [INTERNAL])
#
# Makes the library vantrel_<folder>, alias vantrel::<folder>; a slash in the folder's name becomes an underscore.
#
# PUBLIC_HEADERS are the contract with hosts, which include them as <vantrel/model/Place.h>. DETAIL_HEADERS are what a public header includes
# and no host should: they are installed as <vantrel/detail/util/ItemKey.h>. All other headers stay in the tree and may be listed as
# HEADERS. Inside the tree every header is included with its folder: "model/Place.h"; installing rewrites these lines.
#
# LINKS are what the headers need, PRIVATE_LINKS what the sources alone need. PRECOMPILE names heavy headers that most sources include;
# they are read once where this tree is built for itself, and each source includes what it needs all the same. PACKAGES are found with
# find_package, also by the projects that use the installed library: with any, it is a component of the package that is loaded apart
# from the core. INTERNAL: neither installed nor exported.
function(vantrel_add_library folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "INTERNAL" "" "SOURCES;PUBLIC_HEADERS;DETAIL_HEADERS;HEADERS;LINKS;PACKAGES;PRIVATE_LINKS;PRECOMPILE")
  vantrel_refuse_unknown("${arg_UNPARSED_ARGUMENTS}")
  foreach(package IN LISTS arg_PACKAGES)
    find_package(${package} REQUIRED)
  endforeach()

  string(REPLACE "/" "_" name ${folder})
  set(target vantrel_${name})
  if(arg_SOURCES)
    set(scope PUBLIC)
    add_library(${target})
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vantrel::warnings> ${arg_PRIVATE_LINKS})
  else()
    set(scope INTERFACE)
    add_library(${target} INTERFACE)
  endif()
  add_library(vantrel::${name} ALIAS ${target})
  target_sources(${target} PRIVATE ${arg_SOURCES} ${arg_PUBLIC_HEADERS} ${arg_DETAIL_HEADERS} ${arg_HEADERS})
  target_include_directories(${target} ${scope}
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(${target} ${scope} ${arg_LINKS})
  target_compile_features(${target} ${scope} cxx_std_20)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  vantrel_compile_together(${target})
  if(arg_PRECOMPILE AND PROJECT_IS_TOP_LEVEL)
    target_precompile_headers(${target} PRIVATE ${arg_PRECOMPILE})
  endif()

  if(NOT arg_INTERNAL)
    list(TRANSFORM arg_PUBLIC_HEADERS PREPEND ${folder}/)
    list(TRANSFORM arg_DETAIL_HEADERS PREPEND ${folder}/)
    set_property(GLOBAL APPEND PROPERTY VANTREL_PUBLIC_HEADERS ${arg_PUBLIC_HEADERS})
    set_property(GLOBAL APPEND PROPERTY VANTREL_DETAIL_HEADERS ${arg_DETAIL_HEADERS})
    vantrel_forward_headers(${target} ${arg_PUBLIC_HEADERS})
    # The core is one set of exported targets; a library that stands on the packages of others is a set of its own, which is read only where
    # those packages are.
    set(export VantrelTargets)
    if(arg_PACKAGES)
      set(export Vantrel_${name}Targets)
      set_property(GLOBAL APPEND PROPERTY VANTREL_ADAPTERS ${name})
      set_property(GLOBAL PROPERTY VANTREL_PACKAGES_${name} ${arg_PACKAGES})
    else()
      set_property(GLOBAL APPEND PROPERTY VANTREL_CORE ${name})
    endif()
    install(TARGETS ${target} EXPORT ${export}
      ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
      LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library)
    set_property(GLOBAL APPEND PROPERTY VANTREL_EXPORTED ${target})
  endif()
endfunction()

# A project that builds this tree as a part of itself includes the same names: <vantrel/model/Place.h> leads into the tree there.
function(vantrel_forward_headers target)
  if(PROJECT_IS_TOP_LEVEL)
    return()
  endif()
  foreach(header IN LISTS ARGN)
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/include/vantrel/${header} CONTENT "#include \"${PROJECT_SOURCE_DIR}/src/${header}\"\n")
  endforeach()
  target_include_directories(${target} INTERFACE $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>)
endfunction()

# <vantrel/version.h>: the numbers and the text of project(VERSION). Sets VANTREL_VERSION_DIR, the include directory of those who read it.
function(vantrel_write_version)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.h.in ${PROJECT_BINARY_DIR}/include/vantrel/version.h @ONLY)
  set(VANTREL_VERSION_DIR ${PROJECT_BINARY_DIR}/include PARENT_SCOPE)
endfunction()

# vantrel_add_program(SOURCES <file>... [LINKS <target>...])
#
# The program `vantrel`.
function(vantrel_add_program)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "SOURCES;LINKS")
  vantrel_refuse_unknown("${arg_UNPARSED_ARGUMENTS}")
  add_executable(vantrel ${arg_SOURCES})
  target_link_libraries(vantrel PRIVATE vantrel::warnings ${arg_LINKS})
  install(TARGETS vantrel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
endfunction()

# Installs headers, what `find_package(Vantrel)` reads, and the tables that a host's database needs. Call it after the last folder.
function(vantrel_install_package)
  get_property(targets GLOBAL PROPERTY VANTREL_EXPORTED)
  if(NOT targets)
    return()
  endif()
  get_property(VANTREL_CORE GLOBAL PROPERTY VANTREL_CORE)
  get_property(VANTREL_ADAPTERS GLOBAL PROPERTY VANTREL_ADAPTERS)
  set(VANTREL_ADAPTER_PACKAGES "")
  foreach(adapter IN LISTS VANTREL_ADAPTERS)
    get_property(packages GLOBAL PROPERTY VANTREL_PACKAGES_${adapter})
    string(APPEND VANTREL_ADAPTER_PACKAGES "set(_vantrel_packages_${adapter} \"${packages}\")\n")
  endforeach()

  include(CMakePackageConfigHelpers)
  set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/Vantrel)
  set(VANTREL_SCHEMA_DIR ${CMAKE_INSTALL_DATADIR}/vantrel/schema)
  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VantrelConfig.cmake.in
    ${PROJECT_BINARY_DIR}/VantrelConfig.cmake INSTALL_DESTINATION ${destination} PATH_VARS VANTREL_SCHEMA_DIR)
  write_basic_package_version_file(${PROJECT_BINARY_DIR}/VantrelConfigVersion.cmake COMPATIBILITY SameMinorVersion)
  install(EXPORT VantrelTargets NAMESPACE vantrel:: DESTINATION ${destination} COMPONENT library)
  foreach(adapter IN LISTS VANTREL_ADAPTERS)
    install(EXPORT Vantrel_${adapter}Targets NAMESPACE vantrel:: DESTINATION ${destination} COMPONENT library)
  endforeach()
  install(FILES ${PROJECT_BINARY_DIR}/VantrelConfig.cmake ${PROJECT_BINARY_DIR}/VantrelConfigVersion.cmake
    DESTINATION ${destination} COMPONENT library)
  vantrel_install_headers()
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/schema/
    DESTINATION ${VANTREL_SCHEMA_DIR} COMPONENT library)
endfunction()

# The rewriting waits for the installation, as headers change between configuring and installing.
function(vantrel_install_headers)
  get_property(VANTREL_PUBLIC_HEADERS GLOBAL PROPERTY VANTREL_PUBLIC_HEADERS)
  get_property(VANTREL_DETAIL_HEADERS GLOBAL PROPERTY VANTREL_DETAIL_HEADERS)
  set(VANTREL_STAGE ${PROJECT_BINARY_DIR}/install-headers)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/StageHeaders.cmake.in ${PROJECT_BINARY_DIR}/StageHeaders.cmake @ONLY)
  install(SCRIPT ${PROJECT_BINARY_DIR}/StageHeaders.cmake COMPONENT library)
  install(DIRECTORY ${VANTREL_STAGE}/vantrel DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT library)
  install(FILES ${PROJECT_BINARY_DIR}/include/vantrel/version.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vantrel COMPONENT library)
endfunction()

# Headers that its neighbours read as well take half of the time to compile a source. Names in unnamed namespaces must then differ within
# a folder; a source that cannot be compiled so sets SKIP_UNITY_BUILD_INCLUSION.
function(vantrel_compile_together target)
  get_target_property(type ${target} TYPE)
  if(VANTREL_COMPILE_TOGETHER AND NOT type STREQUAL "INTERFACE_LIBRARY")
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
  endif()
endfunction()

function(vantrel_refuse_unknown arguments)
  if(arguments)
    message(FATAL_ERROR "unknown arguments: ${arguments}")
  endif()
endfunction()
