cmake_minimum_required(VERSION 3.21)
# Layers look only down: base, then script and archive, then store, then
# catalogs, then maps. A source of one folder may include the internal
# headers ("folder/file.h") of the folders listed for it; public headers
# ("mapcfg/...") are for everyone.
set(allowed_base base res)
set(allowed_script base script)
set(allowed_archive base archive)
set(allowed_store base script archive store res)
set(allowed_catalogs base script archive store catalogs)
set(allowed_maps base script archive store catalogs maps)

set(failures "")
foreach(folder base script archive store catalogs maps)
  file(GLOB sources "${SOURCE_DIR}/${folder}/*.h" "${SOURCE_DIR}/${folder}/*.cpp")
  foreach(source ${sources})
    file(STRINGS "${source}" includes REGEX "^#include \"[a-z_]+/")
    foreach(line ${includes})
      string(REGEX REPLACE "^#include \"([a-z_]+)/.*" "\\1" target "${line}")
      if(NOT target STREQUAL "mapcfg" AND NOT target IN_LIST allowed_${folder})
        file(RELATIVE_PATH rel "${SOURCE_DIR}" "${source}")
        string(APPEND failures "\n  ${rel}: ${line}")
      endif()
    endforeach()
  endforeach()
endforeach()
if(failures)
  message(FATAL_ERROR "includes that look up a layer:${failures}")
endif()
