# GBK texts from UTF-8 sources.
#
# The library holds its Chinese texts as GBK bytes, as the configuration
# scripts do, while its sources stay UTF-8. mapcfg_gbk_source(IN OUT) adds a
# build step that runs gbk_escape on the UTF-8 source IN (relative to the
# calling folder) and writes OUT (relative to the calling binary folder), a
# copy whose non-ASCII characters are GBK "\xNN" escapes, before `target` is
# compiled. The result is included by a .cpp of `target`; the calling folder
# adds its binary folder to the include path.
#
# gbk_escape runs on the build machine. When cross-compiling it is built
# there as a project of its own (cmake/host_tools) with the build machine's
# compiler; the target's build of it (mapcfg_gbk_escape_target) is kept for
# the test that both make the same bytes.
include_guard(GLOBAL)

if(CMAKE_CROSSCOMPILING)
  include(ExternalProject)
  set(MAPCFG_HOST_TOOLS_DIR ${CMAKE_BINARY_DIR}/host_tools)
  ExternalProject_Add(mapcfg_host_tools
    SOURCE_DIR ${CMAKE_CURRENT_LIST_DIR}/host_tools
    BINARY_DIR ${MAPCFG_HOST_TOOLS_DIR}
    CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release -DMAPCFG_WERROR=${MAPCFG_WERROR}
    INSTALL_COMMAND ""
    BUILD_ALWAYS ON
    BUILD_BYPRODUCTS ${MAPCFG_HOST_TOOLS_DIR}/mapcfg_gbk_escape)
  set_property(GLOBAL PROPERTY MAPCFG_GBK_ESCAPE ${MAPCFG_HOST_TOOLS_DIR}/mapcfg_gbk_escape)
  set_property(GLOBAL PROPERTY MAPCFG_GBK_ESCAPE_DEPENDS mapcfg_host_tools ${MAPCFG_HOST_TOOLS_DIR}/mapcfg_gbk_escape)
  set(MAPCFG_GBK_ESCAPE_NAME mapcfg_gbk_escape_target)
  include(${CMAKE_CURRENT_LIST_DIR}/gbk_escape.cmake)
else()
  include(${CMAKE_CURRENT_LIST_DIR}/gbk_escape.cmake)
  set_property(GLOBAL PROPERTY MAPCFG_GBK_ESCAPE mapcfg_gbk_escape)
  set_property(GLOBAL PROPERTY MAPCFG_GBK_ESCAPE_DEPENDS mapcfg_gbk_escape)
endif()

# Every generated file, as "source|output" pairs, for the test that compares
# them with the target's own generator.
set_property(GLOBAL PROPERTY MAPCFG_GBK_SOURCES "")

function(mapcfg_gbk_source target in out)
  get_property(generator GLOBAL PROPERTY MAPCFG_GBK_ESCAPE)
  get_property(generator_depends GLOBAL PROPERTY MAPCFG_GBK_ESCAPE_DEPENDS)
  add_custom_command(
    OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${out}
    COMMAND ${generator} ${CMAKE_CURRENT_SOURCE_DIR}/${in} ${CMAKE_CURRENT_BINARY_DIR}/${out}
    DEPENDS ${generator_depends} ${CMAKE_CURRENT_SOURCE_DIR}/${in}
    COMMENT "GBK texts from ${in}"
    VERBATIM)
  string(MAKE_C_IDENTIFIER "${target}_${out}" step)
  add_custom_target(${step} DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${out})
  add_dependencies(${target} ${step})
  set_property(GLOBAL APPEND PROPERTY MAPCFG_GBK_SOURCES
               "${CMAKE_CURRENT_SOURCE_DIR}/${in}|${CMAKE_CURRENT_BINARY_DIR}/${out}")
endfunction()
