# Installation: the library, its public headers (flat, under
# include/zunde-provider), a pkg-config module and a CMake package.
include(CMakePackageConfigHelpers)

install(TARGETS zunde-provider EXPORT ZundeProviderTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zunde-provider)
install(FILES ${ZUNDE_PUBLIC_HEADERS}
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zunde-provider)

# The platform layer is an interface dependency of the exported target.
install(TARGETS zunde-platform EXPORT ZundeProviderTargets)

install(EXPORT ZundeProviderTargets
  NAMESPACE ZundeProvider::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZundeProvider)
configure_package_config_file(cmake/ZundeProviderConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/ZundeProviderConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZundeProvider)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ZundeProviderConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/ZundeProviderConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/ZundeProviderConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZundeProvider)

file(RELATIVE_PATH ZUNDE_PC_RELATIVE_PREFIX "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
configure_file(cmake/zunde-provider.pc.in ${CMAKE_CURRENT_BINARY_DIR}/zunde-provider.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zunde-provider.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
