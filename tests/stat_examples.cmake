# The template files in examples/stat are exactly what the example host
# writes.
#   -DPROGRAM=<write_stat_templates, after the emulator that runs it if any> -DEXPECTED=<examples/stat> -DWORK=<scratch folder>
file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND ${PROGRAM} "${WORK}" RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} ${WORK} failed: ${status}")
endif()
file(GLOB expected RELATIVE "${EXPECTED}" "${EXPECTED}/*.ctp")
file(GLOB written RELATIVE "${WORK}" "${WORK}/*.ctp")
if(NOT expected STREQUAL written)
  message(FATAL_ERROR "examples/stat holds ${expected}, the program writes ${written}")
endif()
foreach(name IN LISTS expected)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files "${EXPECTED}/${name}" "${WORK}/${name}" RESULT_VARIABLE differ)
  if(differ)
    message(FATAL_ERROR "examples/stat/${name} differs from what the program writes: remake it with "
                        "write_stat_templates examples/stat")
  endif()
endforeach()
