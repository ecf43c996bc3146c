# mapcfg_link_iconv(TARGET): what `target` needs for base/code_pages.cpp.
# On Windows that is the system's code pages; elsewhere iconv, which the C
# library often holds itself (glibc), so that nothing is linked then.
include_guard(GLOBAL)
if(NOT WIN32)
  find_package(Iconv REQUIRED)
endif()

function(mapcfg_link_iconv target)
  if(NOT WIN32 AND NOT Iconv_IS_BUILT_IN)
    target_include_directories(${target} PRIVATE ${Iconv_INCLUDE_DIRS})
    target_link_libraries(${target} PRIVATE ${Iconv_LIBRARIES})
  endif()
endfunction()
