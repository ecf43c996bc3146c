# For the consumer scripts: run(WHAT COMMAND...) runs a step, stops the
# script with its output when it fails, and leaves its standard output in
# `out`. Cross-compiled (TOOLCHAIN set), programs built for the host run
# through EMULATOR and carry the suffix in `exe`.
function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(rc)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}${err}")
  endif()
  set(out "${out}" PARENT_SCOPE)
endfunction()

set(exe "")
if(TOOLCHAIN)
  set(exe ".exe")
endif()
