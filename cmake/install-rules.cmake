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

# pkg-config, for hosts built with plain Makefiles or Meson. The prefix is
# found from the .pc file's own place, so the package works from any prefix.
file(RELATIVE_PATH MAPCFG_PC_TO_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" MAPCFG_PC_TO_PREFIX "${MAPCFG_PC_TO_PREFIX}")
if(BUILD_SHARED_LIBS)
  set(MAPCFG_PC_CFLAGS " -DMAPCFG_SHARED")
  set(MAPCFG_PC_LIBS_PRIVATE "")
else()
  set(MAPCFG_PC_CFLAGS "")
  set(MAPCFG_PC_LIBS_PRIVATE "${CMAKE_DL_LIBS}")
  list(TRANSFORM MAPCFG_PC_LIBS_PRIVATE PREPEND "-l")
endif()
configure_file(cmake/mapcfg.pc.in "${CMAKE_CURRENT_BINARY_DIR}/mapcfg.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/mapcfg.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
