# Runs a command and compares its standard output with a golden file.
#   -DCOMMAND=<;-list>  -DGOLDEN=<file>  -DEXPECT_STATUS=<n>  [-DWORKDIR=<dir>]
#   [-DINPUT=<file for standard input>]  [-DTO=<file that takes standard
#   output instead of the comparison, such as /dev/full>]
#   [-DERROR=<regular expression standard error must match>]
#   [-DJSON=ON: standard output must be one JSON document]
# Lines are compared after replacing WORKDIR with "<dir>".
if(NOT WORKDIR)
  set(WORKDIR ".")
endif()
set(redirect)
if(INPUT)
  list(APPEND redirect INPUT_FILE "${INPUT}")
endif()
if(TO)
  list(APPEND redirect OUTPUT_FILE "${TO}")
endif()
execute_process(COMMAND ${COMMAND} WORKING_DIRECTORY "${WORKDIR}" ${redirect}
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
string(REPLACE "${WORKDIR}" "<dir>" out "${out}")
file(READ "${GOLDEN}" want)
if(NOT status STREQUAL "${EXPECT_STATUS}")
  message(FATAL_ERROR "exit status ${status}, wanted ${EXPECT_STATUS}\nstderr: ${err}\nstdout:\n${out}")
endif()
if(ERROR AND NOT err MATCHES "${ERROR}")
  message(FATAL_ERROR "stderr does not match '${ERROR}':\n${err}")
endif()
if(JSON)
  string(JSON type ERROR_VARIABLE json_error TYPE "${out}")
  if(json_error)
    message(FATAL_ERROR "output is not JSON: ${json_error}\n${out}")
  endif()
endif()
if(NOT out STREQUAL want)
  file(WRITE "${GOLDEN}.actual" "${out}")
  message(FATAL_ERROR "output differs from ${GOLDEN} (written to ${GOLDEN}.actual):\n${out}")
endif()
