# How a folder becomes a target: one function for each kind of folder in the tree.
# Sources are globbed, so adding a file needs no edit; a folder takes part when it has a CMakeLists.txt.

set(ZP_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(ZP_WERROR)
  list(APPEND ZP_WARNINGS -Werror)
endif()
# Nobody puts a function of their own in the place of one of ours, so a library may take its own ones into one another.
set(ZP_OWN_FUNCTIONS -fno-semantic-interposition)
set(ZP_SANITIZERS "")
if(ZP_SANITIZE)
  set(ZP_SANITIZERS -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
endif()

function(zp_add_subfolders parent)
  file(GLOB entries CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}
       ${CMAKE_SOURCE_DIR}/${parent}/*/CMakeLists.txt)
  list(SORT entries)
  foreach(entry IN LISTS entries)
    get_filename_component(folder ${entry} DIRECTORY)
    add_subdirectory(${CMAKE_SOURCE_DIR}/${folder} ${CMAKE_BINARY_DIR}/${folder})
  endforeach()
endfunction()

# The flags and include root that everything of ours is compiled with.
function(zp_common target)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>)
  target_compile_options(${target} PRIVATE ${ZP_WARNINGS} ${ZP_SANITIZERS} ${ZP_OWN_FUNCTIONS})
  target_link_options(${target} PRIVATE ${ZP_SANITIZERS})
endfunction()

# A host module: a shared library zp_NAME with the alias zp::NAME, so that the program and its plug-ins
# share one copy of its state. PROGRAM_ONLY: no plug-in may use it.
function(zp_host_module name)
  cmake_parse_arguments(ARG "PROGRAM_ONLY" "" "DEPENDS;PRIVATE" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(zp_${name} SHARED ${sources})
  add_library(zp::${name} ALIAS zp_${name})
  zp_common(zp_${name})
  target_link_libraries(zp_${name} PUBLIC ${ARG_DEPENDS} PRIVATE ${ARG_PRIVATE})
  set_target_properties(zp_${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin
                                              INSTALL_RPATH "$ORIGIN")
  zp_install_host_module(${name} ${ARG_PROGRAM_ONLY})
endfunction()

# A module of the plug-in: a static library zp_plugin_NAME, alias zp::plugin_NAME, hidden by default.
# The frame links all of them into ZPPipeManager.so; unit tests link those that they need.
function(zp_plugin_module name)
  cmake_parse_arguments(ARG "" "" "DEPENDS;PRIVATE" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h)
  add_library(zp_plugin_${name} STATIC ${sources})
  add_library(zp::plugin_${name} ALIAS zp_plugin_${name})
  zp_common(zp_plugin_${name})
  target_link_libraries(zp_plugin_${name} PUBLIC ${ARG_DEPENDS} PRIVATE ${ARG_PRIVATE})
  set_target_properties(zp_plugin_${name} PROPERTIES CXX_VISIBILITY_PRESET hidden
                                                     VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# A program of ours, found beside the libraries in bin/.
function(zp_program name)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${name} ${sources})
  zp_common(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin
                                           INSTALL_RPATH "$ORIGIN/../lib/zppipemanager")
endfunction()

# Lets a target include ZpPaths.h, where ZP_SOURCE_DIR and ZP_BINARY_DIR are. They stand in a header, and not among
# the compiler's options, so that ccache serves all other sources whatever folder they are built in.
function(zp_paths target)
  set(folder ${CMAKE_BINARY_DIR}/generated)
  if(NOT EXISTS ${folder}/ZpPaths.h)
    file(WRITE ${folder}/ZpPaths.h
         "#pragma once\n#define ZP_SOURCE_DIR \"${CMAKE_SOURCE_DIR}\"\n#define ZP_BINARY_DIR \"${CMAKE_BINARY_DIR}\"\n")
  endif()
  target_include_directories(${target} PRIVATE ${folder})
endfunction()

# The tests of one folder: zp_tests(host/afx LIBS zp::afx) builds test_host_afx and registers each case. They are
# compiled without optimisation, in a little more than half the time, as nearly all of their running time is that of
# the libraries; OPTIMIZED where the tests themselves calculate.
function(zp_tests folder)
  cmake_parse_arguments(ARG "OPTIMIZED" "" "LIBS" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources})
  zp_common(test_${name})
  if(NOT ARG_OPTIMIZED)
    target_compile_options(test_${name} PRIVATE -O0)
  endif()
  zp_paths(test_${name})
  target_link_libraries(test_${name} PRIVATE ${ARG_LIBS} GTest::gmock GTest::gtest GTest::gtest_main)
  gtest_discover_tests(test_${name} TEST_PREFIX "${folder}/" PROPERTIES LABELS unit TIMEOUT 300
                       DISCOVERY_TIMEOUT 60)
endfunction()

function(zp_bench name)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  find_package(benchmark REQUIRED)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(bench_${name} EXCLUDE_FROM_ALL ${sources})
  zp_common(bench_${name})
  zp_paths(bench_${name})
  target_link_libraries(bench_${name} PRIVATE ${ARG_LIBS} benchmark::benchmark)
endfunction()

# A libFuzzer target: fuzz_NAME, built with clang under the preset "fuzz".
function(zp_fuzz name)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(fuzz_${name} ${sources})
  zp_common(fuzz_${name})
  target_compile_options(fuzz_${name} PRIVATE -fsanitize=fuzzer,address,undefined)
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer,address,undefined)
  target_link_libraries(fuzz_${name} PRIVATE ${ARG_LIBS})
endfunction()
