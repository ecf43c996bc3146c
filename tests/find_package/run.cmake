# Installs the built library into a scratch prefix, then checks what a user
# of that prefix meets: the installed tool runs without LD_LIBRARY_PATH, a
# host built with find_package(mapcfg) runs from its build tree and from its
# own install, and a one-file host builds with pkg-config.
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(rc)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}${err}")
  endif()
  set(out "${out}" PARENT_SCOPE)
endfunction()

run("install" ${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")
# The resource libraries are installed beside the library.
file(GLOB res "${prefix}/lib*/mapcfg_res_en${CMAKE_SHARED_MODULE_SUFFIX}" "${prefix}/lib*/mapcfg_res_en.so")
list(GET res 0 res)
get_filename_component(libdir "${res}" DIRECTORY)

# The installed tool, with no library path set.
set(ENV{LD_LIBRARY_PATH} "")
if(EXISTS "${prefix}/bin/mapcfg")
  run("installed mapcfg --version" "${prefix}/bin/mapcfg" --version)
  run("installed mapcfg script" "${prefix}/bin/mapcfg" script "${SOURCE_DIR}/examples/wells.cfg" --block "Well Status")
  if(NOT out MATCHES "Oil well")
    message(FATAL_ERROR "installed mapcfg script printed:\n${out}")
  endif()
endif()

# A CMake host, run from its build tree and from its install.
run("configuring the consumer" ${CMAKE_COMMAND} -S "${SOURCE_DIR}/tests/find_package" -B "${WORK_DIR}/build"
    -G "${GENERATOR}" "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_INSTALL_PREFIX=${WORK_DIR}/host"
    "-DCMAKE_CXX_FLAGS=${CONSUMER_FLAGS}")
run("building the consumer" ${CMAKE_COMMAND} --build "${WORK_DIR}/build")
run("the consumer" "${WORK_DIR}/build/consumer" "${libdir}")
run("installing the consumer" ${CMAKE_COMMAND} --install "${WORK_DIR}/build")
run("the installed consumer" "${WORK_DIR}/host/bin/consumer" "${libdir}")

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
