# What stands behind the host's operations (include/zthalf/host/), chosen by linking and by nothing else: the library's
# objects are the same. docs/host-provider.md tells what a provider must do.
#
# embedded: libzthalf-host, a small host of our own, built and installed beside the library.
# external: the libraries of a host, found in ZTHALF_HOST_LIBRARY_DIR; where they are when a program runs is the host's
# affair.
set(ZTHALF_HOST embedded CACHE STRING "What provides the host's operations: embedded, a library of ours; or external")
set_property(CACHE ZTHALF_HOST PROPERTY STRINGS embedded external)
set(ZTHALF_HOST_LIBRARY_DIR "" CACHE PATH "With ZTHALF_HOST=external: where the host's libraries are")
# A host whose arrays are laid out in another way brings a header of its own for that, which is found before ours.
set(ZTHALF_HOST_INCLUDE_DIR "" CACHE PATH
  "With ZTHALF_HOST=external: where its zthalf/host/vq_fields.h is, if it has one")
set(ZTHALF_HOST_PLACE "")

if(ZTHALF_HOST STREQUAL "external")
  set(ZTHALF_HOST_LIBRARIES "")
  foreach(name vq ztkobs ztfl ztfloat2str ztcpp11compat)
    find_library(ZTHALF_HOST_${name} ${name} PATHS ${ZTHALF_HOST_LIBRARY_DIR} NO_DEFAULT_PATH NO_CACHE)
    if(NOT ZTHALF_HOST_${name})
      message(FATAL_ERROR "There is no lib${name} in ZTHALF_HOST_LIBRARY_DIR (${ZTHALF_HOST_LIBRARY_DIR}).")
    endif()
    list(APPEND ZTHALF_HOST_LIBRARIES ${ZTHALF_HOST_${name}})
  endforeach()
  set(ZTHALF_HOST_FOR_TESTS ${ZTHALF_HOST_LIBRARIES})
  return()
elseif(NOT ZTHALF_HOST STREQUAL "embedded")
  message(FATAL_ERROR "ZTHALF_HOST is embedded or external, not '${ZTHALF_HOST}'.")
endif()

file(GLOB ZTHALF_HOST_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/host/embedded/*.cpp)
add_library(zthalf_host_objects OBJECT ${ZTHALF_HOST_SOURCES})
target_include_directories(zthalf_host_objects PRIVATE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(zthalf_host_objects PRIVATE zthalf_build)
set_target_properties(zthalf_host_objects PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)

add_library(zthalf_host ${kind} $<TARGET_OBJECTS:zthalf_host_objects>)
add_library(zthalf::host ALIAS zthalf_host)
target_include_directories(zthalf_host INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_compile_features(zthalf_host PUBLIC cxx_std_17)
target_link_libraries(zthalf_host PRIVATE Threads::Threads)
target_link_options(zthalf_host PRIVATE
  -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/libzthalf-host.map -Wl,--no-undefined -Wl,-z,relro,-z,now
  -Wl,-z,noexecstack)
set_target_properties(zthalf_host PROPERTIES
  OUTPUT_NAME zthalf-host EXPORT_NAME host VERSION ${PROJECT_VERSION} SOVERSION ${ZTHALF_ABI}
  LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/libzthalf-host.map)

# The same as an archive, for the tests of a static installation.
add_library(zthalf_host_archive STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:zthalf_host_objects>)

set(ZTHALF_HOST_LIBRARIES zthalf_host)
set(ZTHALF_HOST_PLACE $ORIGIN)
# A test that brings a host of its own says so by this property and gets none of ours.
set(ZTHALF_HOST_FOR_TESTS $<$<NOT:$<BOOL:$<TARGET_PROPERTY:ZTHALF_BRINGS_HOST>>>:zthalf_host>)
