# The tool's lists of the keys the map kinds' readers look up (check's
# unknown-key report) name exactly the keys those readers name.
#   -DSOURCE_DIR=<project folder>
# Block names, and the keys of the template list (read by maps/track_reader.cpp).
set(not_keys kArial kArial316 kWellLocationMap kReservoirProfileMap kFenceMap kMultiWellCorrelationMap
    kSingleWellMap kSingleWellTemplate kDefaultTemplate kTemplate)
function(keys_of out)
  set(all)
  foreach(file IN LISTS ARGN)
    file(READ "${SOURCE_DIR}/${file}" text)
    string(REGEX MATCHALL "cfg::k[A-Za-z0-9_]+" found "${text}")
    list(APPEND all ${found})
  endforeach()
  list(TRANSFORM all REPLACE "^cfg::" "")
  list(REMOVE_DUPLICATES all)
  list(REMOVE_ITEM all ${not_keys})
  list(SORT all)
  set(${out} "${all}" PARENT_SCOPE)
endfunction()
keys_of(readers catalogs/map_records.cpp catalogs/display.cpp maps/wellloc.cpp maps/section_params.cpp
        maps/map_kinds.cpp maps/single_well.cpp maps/track_reader.cpp)
keys_of(tool tools/map_kinds.cpp)
if(NOT readers STREQUAL tool)
  set(only_readers ${readers})
  list(REMOVE_ITEM only_readers ${tool})
  set(only_tool ${tool})
  list(REMOVE_ITEM only_tool ${readers})
  message(FATAL_ERROR "tools/map_kinds.cpp misses the reader keys [${only_readers}] and lists [${only_tool}], "
                      "which no map reader names")
endif()
list(LENGTH tool n)
if(n LESS 100)
  message(FATAL_ERROR "found only ${n} keys")
endif()
