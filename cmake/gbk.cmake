# GBK texts from UTF-8 sources.
#
# The library holds its Chinese texts as GBK bytes, as the configuration
# scripts do, while its sources stay UTF-8. mapcfg_gbk_source(IN OUT) adds a
# build step that runs gbk_escape on the UTF-8 source IN (relative to the
# calling folder) and writes OUT (relative to the calling binary folder), a
# copy whose non-ASCII characters are GBK "\xNN" escapes, before `target` is
# compiled. The result is included by a .cpp of `target`; the calling folder
# adds its binary folder to the include path.
include_guard(GLOBAL)

add_executable(mapcfg_gbk_escape ${CMAKE_CURRENT_LIST_DIR}/gbk_escape.cpp)
mapcfg_warnings(mapcfg_gbk_escape)
if(NOT WIN32)
  find_package(Iconv REQUIRED)
  target_link_libraries(mapcfg_gbk_escape PRIVATE Iconv::Iconv)
endif()

function(mapcfg_gbk_source target in out)
  add_custom_command(
    OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${out}
    COMMAND mapcfg_gbk_escape ${CMAKE_CURRENT_SOURCE_DIR}/${in} ${CMAKE_CURRENT_BINARY_DIR}/${out}
    DEPENDS mapcfg_gbk_escape ${CMAKE_CURRENT_SOURCE_DIR}/${in}
    COMMENT "GBK texts from ${in}"
    VERBATIM)
  string(MAKE_C_IDENTIFIER "${target}_${out}" step)
  add_custom_target(${step} DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${out})
  add_dependencies(${target} ${step})
endfunction()
