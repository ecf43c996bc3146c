# Configures, builds and runs tests/add_subdirectory, a host that holds
# mapcfg as a subproject. Cross-compiled (TOOLCHAIN set), the host runs
# through EMULATOR.
file(REMOVE_RECURSE "${WORK_DIR}")

include(${CMAKE_CURRENT_LIST_DIR}/../consumer_steps.cmake)

run("configuring the host" ${CMAKE_COMMAND} -S "${SOURCE_DIR}/tests/add_subdirectory" -B "${WORK_DIR}"
    -G "${GENERATOR}" "-DMAPCFG_SOURCE_DIR=${SOURCE_DIR}" "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
run("building the host" ${CMAKE_COMMAND} --build "${WORK_DIR}" --target host)
run("the host" ${EMULATOR} "${WORK_DIR}/host${exe}")
if(NOT out MATCHES "mapcfg [0-9.]+ found")
  message(FATAL_ERROR "the host printed:\n${out}")
endif()
