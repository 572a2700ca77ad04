# The result tables: a generator linked with the scalar functions runs them over every pattern during the build. In a
# cross build it runs under CMAKE_CROSSCOMPILING_EMULATOR, or, since the bits are the same everywhere, a generator from
# a native build of the same sources takes its place.

set(ZTHALF_TABLE_GENERATOR "" CACHE FILEPATH
  "zthalf_generate_tables of a native build, for a cross build without an emulator")

if(NOT ZTHALF_TABLE_GENERATOR)
  add_library(zthalf_scalar STATIC EXCLUDE_FROM_ALL
    "$<FILTER:$<TARGET_OBJECTS:zthalf_objects>,INCLUDE,/src/(core|scalar)/>")
  set_target_properties(zthalf_scalar PROPERTIES LINKER_LANGUAGE CXX)

  add_executable(zthalf_generate_tables ${PROJECT_SOURCE_DIR}/tools/generate-tables.cpp)
  target_include_directories(zthalf_generate_tables PRIVATE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(zthalf_generate_tables PRIVATE zthalf_build zthalf_scalar)
  if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
    message(FATAL_ERROR "The result tables need a program to run: set CMAKE_CROSSCOMPILING_EMULATOR or "
                        "ZTHALF_TABLE_GENERATOR.")
  endif()
  set(ZTHALF_TABLE_GENERATOR zthalf_generate_tables)
endif()

set(ZTHALF_TABLE_SOURCE ${PROJECT_BINARY_DIR}/generated/result_tables.cpp)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/generated)
add_custom_command(OUTPUT ${ZTHALF_TABLE_SOURCE}
  COMMAND ${ZTHALF_TABLE_GENERATOR} > ${ZTHALF_TABLE_SOURCE}
  DEPENDS ${ZTHALF_TABLE_GENERATOR} COMMENT "Result tables" VERBATIM)

add_library(zthalf_tables OBJECT ${ZTHALF_TABLE_SOURCE})
target_include_directories(zthalf_tables PRIVATE ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(zthalf_tables PRIVATE zthalf_build)
set_target_properties(zthalf_tables PROPERTIES CXX_VISIBILITY_PRESET hidden)
