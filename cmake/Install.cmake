# cmake --install: the library with its SONAME links, the headers, a CMake package, a pkg-config file and the licence.
# The target uninstall takes back what the last installation put there.
include(CMakePackageConfigHelpers)

set(ZTHALF_HOMEPAGE "" CACHE STRING "Where the project is found on the net, for the pkg-config file; left out if empty")

set(targets zthalf)
if(TARGET zthalf_host)
  list(APPEND targets zthalf_host)
endif()
install(TARGETS ${targets} EXPORT zthalfTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
set(except "")
if(ZTHALF_HOST_INCLUDE_DIR)  # its header in place of our own: one over the other is left out where both are as old
  set(except PATTERN host/vq_fields.h EXCLUDE)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zthalf DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${except})
if(ZTHALF_HOST_INCLUDE_DIR)
  install(FILES ${ZTHALF_HOST_INCLUDE_DIR}/zthalf/host/vq_fields.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zthalf/host)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(EXPORT zthalfTargets NAMESPACE zthalf:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zthalf)

# Before 1.0 a minor version may ask for changes in a program's source. What is compiled already is kept by the SONAME.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(compatibility SameMinorVersion)
else()
  set(compatibility SameMajorVersion)
endif()
write_basic_package_version_file(zthalfConfigVersion.cmake COMPATIBILITY ${compatibility})

# A program that is linked with the static library links what that needs as well, the host included.
set(ZTHALF_PC_HOST -lzthalf-host)
if(NOT TARGET zthalf_host)
  list(TRANSFORM ZTHALF_HOST_LIBRARIES REPLACE "^.*/lib([^/.]*)\\.[^/]*$" "-l\\1" OUTPUT_VARIABLE ZTHALF_PC_HOST)
  list(PREPEND ZTHALF_PC_HOST -L${ZTHALF_HOST_LIBRARY_DIR})
  list(JOIN ZTHALF_PC_HOST " " ZTHALF_PC_HOST)
endif()
get_target_property(kind zthalf TYPE)
if(kind STREQUAL "STATIC_LIBRARY")
  set(ZTHALF_FIND_DEPENDENCIES
    "include(CMakeFindDependencyMacro)\nfind_dependency(TBB)\nfind_dependency(Threads)\n")
  set(ZTHALF_PC_REQUIRES Requires)
  set(ZTHALF_PC_LIBS "-L\${libdir} -lzthalf ${ZTHALF_PC_HOST} -lstdc++ -lm -pthread")
else()
  set(ZTHALF_FIND_DEPENDENCIES "")
  set(ZTHALF_PC_REQUIRES Requires.private)
  set(ZTHALF_PC_LIBS "-L\${libdir} -lzthalf")
endif()
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/zthalfConfig.cmake.in zthalfConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zthalf)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zthalfConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/zthalfConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zthalf)

# Folders in the pkg-config file are relative to itself, so that it is right wherever the tree is installed or moved to.
# A folder that was given as an absolute path stays one; with an absolute library folder the prefix does, too.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(ZTHALF_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
  set(ZTHALF_PC_LIBDIR ${CMAKE_INSTALL_LIBDIR})
else()
  file(RELATIVE_PATH up ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  string(REGEX REPLACE "/$" "" up "${up}")
  set(ZTHALF_PC_PREFIX "\${pcfiledir}/${up}")
  set(ZTHALF_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
set(ZTHALF_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
if(IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  set(ZTHALF_PC_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR})
endif()
set(ZTHALF_PC_URL "")
if(ZTHALF_HOMEPAGE)
  set(ZTHALF_PC_URL "URL: ${ZTHALF_HOMEPAGE}\n")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/zthalf.pc.in zthalf.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zthalf.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(PROJECT_IS_TOP_LEVEL)
  add_custom_target(uninstall
    COMMAND ${CMAKE_COMMAND} -DBUILD=${PROJECT_BINARY_DIR} -P ${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake VERBATIM)
endif()
