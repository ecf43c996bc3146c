# Runs a command and compares its standard output with a golden file.
#   -DCOMMAND=<;-list>  -DGOLDEN=<file>  -DEXPECT_STATUS=<n>  [-DWORKDIR=<dir>]
# Lines are compared after replacing WORKDIR with "<dir>".
if(NOT WORKDIR)
  set(WORKDIR ".")
endif()
execute_process(COMMAND ${COMMAND} WORKING_DIRECTORY "${WORKDIR}"
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
string(REPLACE "${WORKDIR}" "<dir>" out "${out}")
file(READ "${GOLDEN}" want)
if(NOT status STREQUAL "${EXPECT_STATUS}")
  message(FATAL_ERROR "exit status ${status}, wanted ${EXPECT_STATUS}\nstderr: ${err}\nstdout:\n${out}")
endif()
if(NOT out STREQUAL want)
  file(WRITE "${GOLDEN}.actual" "${out}")
  message(FATAL_ERROR "output differs from ${GOLDEN} (written to ${GOLDEN}.actual):\n${out}")
endif()
