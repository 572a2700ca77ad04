# zthalf_add_test(NAME name LABELS labels... [LEVELS] [LEAN] [LIBRARIES ...] [DEFINITIONS ...] [DEPENDS targets...]
#                 [SOURCE file])
#
# The one way a test is made: <name>_test.cpp, or another file, with the library's internals and GoogleTest, as a
# program. With LEVELS it is registered once for each instruction level, name@base, name@v3, name@v4, and a level that
# the processor lacks counts as skipped.
# LEAN is for tests that are long to compile and whose loops are those of the library: they are optimised little.
# Tests whose GoogleTest names begin with Long are left to a second registration with the label long.
#
# The label cross marks what is built and run for every architecture, also where the rest is not: the target cross_checks.
add_custom_target(cross_checks)

if(CMAKE_CROSSCOMPILING)
  # Debian ships GoogleTest for foreign architectures as sources.
  add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
else()
  find_package(GTest REQUIRED)
endif()

zthalf_instantiates_tasks(tests/support/caller_groups.cpp)
add_library(zthalf_test_support STATIC
  tests/support/main.cpp tests/support/caller_groups.cpp tests/support/selected_entries.cpp)
# What every test includes is read once. A compiler takes it only where it is told the same about positions.
target_precompile_headers(zthalf_test_support PRIVATE <gtest/gtest.h>)
set_target_properties(zthalf_test_support PROPERTIES POSITION_INDEPENDENT_CODE OFF)
set_source_files_properties(tests/support/selected_entries.cpp PROPERTIES COMPILE_OPTIONS -O1)
target_link_libraries(zthalf_test_support PUBLIC zthalf_internals GTest::gtest GTest::gmock)
target_include_directories(zthalf_test_support PUBLIC ${PROJECT_SOURCE_DIR})
target_compile_definitions(zthalf_test_support PUBLIC ZTHALF_GOLDEN_DIRECTORY="${PROJECT_SOURCE_DIR}/tests/golden")
target_compile_options(zthalf_test_support PUBLIC -Wall -Wextra $<$<BOOL:${ZTHALF_WERROR}>:-Werror>)

# Tests of accuracy need MPFR and MPC and are left out of cross builds: accuracy follows from the bits, which are compared there.
if(NOT CMAKE_CROSSCOMPILING)
  find_library(ZTHALF_MPFR mpfr REQUIRED)
  find_library(ZTHALF_MPC mpc REQUIRED)
endif()

if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
  set(ZTHALF_LEVELS base v3 v4)
else()
  set(ZTHALF_LEVELS base)
endif()

function(zthalf_add_test)
  cmake_parse_arguments(PARSE_ARGV 0 test "LEVELS;LEAN" "NAME;SOURCE" "LABELS;LIBRARIES;DEFINITIONS;DEPENDS")
  string(REPLACE "/" "_" target test_${test_NAME})
  set(source ${test_NAME}_test.cpp)
  if(test_SOURCE)
    set(source ${test_SOURCE})
  endif()
  add_executable(${target} ${source})
  target_link_libraries(${target} PRIVATE zthalf_test_support ${test_LIBRARIES})
  target_compile_definitions(${target} PRIVATE ${test_DEFINITIONS})
  if(test_DEPENDS)
    add_dependencies(${target} ${test_DEPENDS})
  endif()
  target_precompile_headers(${target} REUSE_FROM zthalf_test_support)
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
  if(test_LEAN)
    target_compile_options(${target} PRIVATE -O1)
  endif()
  if("cross" IN_LIST test_LABELS)
    add_dependencies(cross_checks ${target})
  endif()
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})  # it may get its first long test
  file(STRINGS ${source} long_tests REGEX "^TEST(_P|_F)?\\(Long")
  set(levels ${ZTHALF_LEVELS})
  if(NOT test_LEVELS)
    set(levels supported)
  endif()
  foreach(level IN LISTS levels)
    set(name ${test_NAME}@${level})
    if(NOT test_LEVELS)
      set(name ${test_NAME})
    endif()
    add_test(NAME ${name} COMMAND ${target} --gtest_filter=-Long*:*/Long* --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES LABELS "${test_LABELS}")
    set(names ${name})
    if(long_tests)
      add_test(NAME long/${name} COMMAND ${target} --gtest_filter=Long*:*/Long* --gtest_brief=1)
      set_tests_properties(long/${name} PROPERTIES LABELS long)
      list(APPEND names long/${name})
    endif()
    set_tests_properties(${names} PROPERTIES SKIP_RETURN_CODE 77
      ENVIRONMENT "ZTHALF_TEST_LEVEL=${level};TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp")
  endforeach()
endfunction()

# zthalf_add_script_test(NAME name SCRIPT file [ARGUMENTS arguments...] LABELS labels... [LEVELS])
#
# The one way a test that is no program of ours is made: a Python script, status 77 for a test that cannot be tried here.
# LEVELS as above.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

function(zthalf_add_script_test)
  cmake_parse_arguments(PARSE_ARGV 0 test "LEVELS" "NAME;SCRIPT" "ARGUMENTS;LABELS")
  set(levels supported)
  if(test_LEVELS)
    set(levels ${ZTHALF_LEVELS})
  endif()
  foreach(level IN LISTS levels)
    set(name ${test_NAME})
    if(test_LEVELS)
      string(APPEND name @${level})
    endif()
    add_test(NAME ${name}
      COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/${test_SCRIPT} ${test_ARGUMENTS}
      COMMAND_EXPAND_LISTS)
    set_tests_properties(${name} PROPERTIES
      LABELS "${test_LABELS}" ENVIRONMENT ZTHALF_TEST_LEVEL=${level} SKIP_RETURN_CODE 77)
  endforeach()
endfunction()
