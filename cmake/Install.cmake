# `cmake --install` gives headers, library, CMake package and pkg-config file. The component `hwcaps`, installed only by
# name, puts the library into the folder that the loader prefers on processors of this level: a baseline build in the
# library folder with higher levels beneath it (tools/install-levels.sh) needs no choice at run time.
include(CMakePackageConfigHelpers)

install(TARGETS vemi EXPORT vemi-targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(DIRECTORY include/vemi DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
  FILES_MATCHING PATTERN "*.h")

if(VEMI_LEVEL MATCHES "^x86-64")
  install(TARGETS vemi
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/${VEMI_LEVEL} NAMELINK_SKIP
    COMPONENT hwcaps EXCLUDE_FROM_ALL)
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vemi)
configure_package_config_file(cmake/vemi-config.cmake.in ${PROJECT_BINARY_DIR}/vemi-config.cmake
  INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vemi-config-version.cmake COMPATIBILITY SameMajorVersion)
install(EXPORT vemi-targets NAMESPACE vemi:: DESTINATION ${package_dir} COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/vemi-config.cmake ${PROJECT_BINARY_DIR}/vemi-config-version.cmake
  DESTINATION ${package_dir} COMPONENT development)

# The pkg-config file finds its prefix from its own place, so that an installed tree can be moved.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH VEMI_PREFIX_FROM_PC /${pkgconfig_dir} /)
configure_file(cmake/vemi.pc.in ${PROJECT_BINARY_DIR}/vemi.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vemi.pc DESTINATION ${pkgconfig_dir} COMPONENT development)
