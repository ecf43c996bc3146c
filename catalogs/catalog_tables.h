// What the catalogue sources share: keys kept ascending without ASCII case
// beside a parallel array of values, and the readers that fill them.
#ifndef MAPCFG_CATALOGS_CATALOG_TABLES_H_
#define MAPCFG_CATALOGS_CATALOG_TABLES_H_

#include <algorithm>
#include <utility>
#include <vector>

#include "mapcfg/script.h"
#include "mapcfg/values.h"
#include "store/config_strings.h"

namespace mapcfg {
namespace detail {

// Inserts `key` where the search of `keys` puts it (after an equal key found)
// and `value` at the same index of `values`. A `values` array that a host
// left shorter than its keys takes the value at its end.
template <class T>
void InsertByKey(StringArray& keys, std::vector<T>& values, const String& key, T value) {
  const size_t at = static_cast<size_t>(sAscInsert(keys, key, 0, 1));
  values.insert(values.begin() + static_cast<std::ptrdiff_t>(std::min(at, values.size())), std::move(value));
}

// The value that belongs to `key`, or null when the key is absent (or a host
// left `values` shorter than the keys).
template <class T>
T* FindByKey(const StringArray& keys, std::vector<T>& values, const String& key) {
  const int at = sAscFind(keys, key, 1);
  return at >= 0 && static_cast<size_t>(at) < values.size() ? &values[static_cast<size_t>(at)] : nullptr;
}

// Inserts every key of block `block` (in the current language) by key, with
// the value parse(value text).
template <class T, class Parse>
void ReadSortedBlock(const CCfgScript& script, cfg::Str block, StringArray& keys, std::vector<T>& values, Parse parse) {
  const String name = cfg::Name(block);
  const int count = script.GetKeyCnt(name.c_str());
  for (int i = 0; i < count; ++i)
    InsertByKey(keys, values, script.GetKeyName(name.c_str(), i), parse(script.GetKeyVal(name.c_str(), i)));
}

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_CATALOG_TABLES_H_
