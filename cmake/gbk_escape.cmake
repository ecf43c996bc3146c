# The gbk_escape program, named ${MAPCFG_GBK_ESCAPE_NAME} (mapcfg_gbk_escape
# unless set), with the library's own GBK conversion (base/code_pages.cpp).
if(NOT MAPCFG_GBK_ESCAPE_NAME)
  set(MAPCFG_GBK_ESCAPE_NAME mapcfg_gbk_escape)
endif()
add_executable(${MAPCFG_GBK_ESCAPE_NAME} ${CMAKE_CURRENT_LIST_DIR}/gbk_escape.cpp
                                         ${CMAKE_CURRENT_LIST_DIR}/../base/code_pages.cpp)
target_include_directories(${MAPCFG_GBK_ESCAPE_NAME} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)
mapcfg_warnings(${MAPCFG_GBK_ESCAPE_NAME})
mapcfg_link_iconv(${MAPCFG_GBK_ESCAPE_NAME})
