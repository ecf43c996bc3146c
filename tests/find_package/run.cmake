# Cross-compiled (TOOLCHAIN set), the hosts are built with that toolchain and
# run through EMULATOR.
#
# Installs the built library into a scratch prefix, then checks what a user
# of that prefix meets: the installed tool runs without LD_LIBRARY_PATH, a
# host built with find_package(mapcfg) runs from its build tree and from its
# own install, and a one-file host builds with pkg-config.
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")

include(${CMAKE_CURRENT_LIST_DIR}/../consumer_steps.cmake)

run("install" ${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")
# The resource libraries are installed beside the library.
file(GLOB res "${prefix}/lib*/mapcfg_res_en.so" "${prefix}/bin/mapcfg_res_en.dll")
list(GET res 0 res)
get_filename_component(libdir "${res}" DIRECTORY)

# The installed tool, with no library path set (on Windows the library is
# beside it in bin).
set(ENV{LD_LIBRARY_PATH} "")
if(EXISTS "${prefix}/bin/mapcfg${exe}")
  run("installed mapcfg --version" ${EMULATOR} "${prefix}/bin/mapcfg${exe}" --version)
  run("installed mapcfg script" ${EMULATOR} "${prefix}/bin/mapcfg${exe}" script "${SOURCE_DIR}/examples/wells.cfg"
      --block "Well Status")
  if(NOT out MATCHES "Oil well")
    message(FATAL_ERROR "installed mapcfg script printed:\n${out}")
  endif()
endif()

# A CMake host, run from its build tree and from its install.
file(GLOB cmake_dir "${prefix}/lib*/cmake/mapcfg")
run("configuring the consumer" ${CMAKE_COMMAND} -S "${SOURCE_DIR}/tests/find_package" -B "${WORK_DIR}/build"
    -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_INSTALL_PREFIX=${WORK_DIR}/host"
    # A cross toolchain searches its own root only; the package is named.
    "-Dmapcfg_DIR=${cmake_dir}"
    "-DCMAKE_CXX_FLAGS=${CONSUMER_FLAGS}" "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
run("building the consumer" ${CMAKE_COMMAND} --build "${WORK_DIR}/build")
if(TOOLCHAIN)
  # Windows: the build tree's host finds the DLL through the search path.
  set(ENV{WINEPATH} "${prefix}/bin")
endif()
run("the consumer" ${EMULATOR} "${WORK_DIR}/build/consumer${exe}" "${libdir}")
unset(ENV{WINEPATH})
run("installing the consumer" ${CMAKE_COMMAND} --install "${WORK_DIR}/build")
run("the installed consumer" ${EMULATOR} "${WORK_DIR}/host/bin/consumer${exe}" "${libdir}")

if(TOOLCHAIN)
  message(STATUS "no pkg-config host: pkg-config is for the build machine's own libraries")
  return()
endif()

# A one-file host built with pkg-config.
find_program(PKG_CONFIG NAMES pkg-config pkgconf)
if(NOT PKG_CONFIG)
  message(FATAL_ERROR "pkg-config is needed for this test (Debian: pkgconf)")
endif()
file(GLOB pcdir "${prefix}/lib*/pkgconfig")
set(ENV{PKG_CONFIG_PATH} "${pcdir}")
run("pkg-config" ${PKG_CONFIG} --cflags --libs mapcfg)
separate_arguments(flags UNIX_COMMAND "${out}")
run("pkg-config libdir" ${PKG_CONFIG} --variable=libdir mapcfg)
string(STRIP "${out}" pc_libdir)
separate_arguments(extra UNIX_COMMAND "${CONSUMER_FLAGS}")
run("building with pkg-config" ${CXX} -std=c++17 ${extra} "${SOURCE_DIR}/tests/find_package/main.cpp" ${flags}
    "-Wl,-rpath,${pc_libdir}" -o "${WORK_DIR}/pc_consumer")
run("the pkg-config consumer" "${WORK_DIR}/pc_consumer" "${libdir}")
