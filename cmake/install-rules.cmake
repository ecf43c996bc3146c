include(CMakePackageConfigHelpers)

set(MAPCFG_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/mapcfg")

install(TARGETS mapcfg EXPORT mapcfgTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/mapcfg DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT mapcfgTargets NAMESPACE mapcfg:: DESTINATION ${MAPCFG_CMAKE_DIR})

configure_package_config_file(cmake/mapcfgConfig.cmake.in
  "${CMAKE_CURRENT_BINARY_DIR}/mapcfgConfig.cmake"
  INSTALL_DESTINATION ${MAPCFG_CMAKE_DIR})
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/mapcfgConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/mapcfgConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/mapcfgConfigVersion.cmake"
  DESTINATION ${MAPCFG_CMAKE_DIR})
