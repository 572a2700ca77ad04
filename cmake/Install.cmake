# cmake --install: the library with its SONAME links, the headers, a CMake package and a pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS zthalf EXPORT zthalfTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zthalf DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT zthalfTargets NAMESPACE zthalf:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zthalf)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/zthalfConfig.cmake.in zthalfConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zthalf)
write_basic_package_version_file(zthalfConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zthalfConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/zthalfConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zthalf)

# Relative to itself, so that the file is right wherever the tree is installed or moved to.
file(RELATIVE_PATH ZTHALF_PREFIX_FROM_PC ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(${PROJECT_SOURCE_DIR}/cmake/zthalf.pc.in zthalf.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zthalf.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
