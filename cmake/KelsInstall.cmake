# Installation: libraries, headers, CMake package (find_package(kels) ->
# kels::kels, kels::kels_static, kels::kelcore) and pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS kels kels_static kelcore kelcore_static EXPORT kelsTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES include/kelstypes.h include/kels.h include/kelcore.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

install(EXPORT kelsTargets NAMESPACE kels:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kels)
configure_package_config_file(cmake/kelsConfig.cmake.in
  ${PROJECT_BINARY_DIR}/kelsConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kels)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kelsConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kelsConfig.cmake ${PROJECT_BINARY_DIR}/kelsConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kels)

# The .pc file locates the prefix relative to itself, so an installed tree
# can be moved.
file(RELATIVE_PATH KELS_PC_PREFIX "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" KELS_PC_PREFIX "${KELS_PC_PREFIX}")
configure_file(cmake/kels.pc.in ${PROJECT_BINARY_DIR}/kels.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kels.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
