# Warnings for the project's own code; errors too with MAPCFG_WERROR, which
# is on when mapcfg is the top-level project and off when a host builds it
# as a subproject with a compiler of its own choosing.
option(MAPCFG_WERROR "Treat warnings in mapcfg's own code as errors" ${PROJECT_IS_TOP_LEVEL})

function(mapcfg_warnings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${MAPCFG_WERROR}>:/WX>)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic $<$<BOOL:${MAPCFG_WERROR}>:-Werror>)
  endif()
endfunction()
