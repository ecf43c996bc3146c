// Named configuration strings: the block and key names that readers look up,
// by the row of the bilingual table that holds them.
#ifndef MAPCFG_STORE_CONFIG_STRINGS_H_
#define MAPCFG_STORE_CONFIG_STRINGS_H_

#include "mapcfg/store.h"

namespace mapcfg {
namespace cfg {

// cfg::kLithologyCorrelation is row 8 ("LithologyCorrelation" /
// "岩性符号配置表"); rows without a plain English name are kStr<index>.
enum Str : int {
#define MAPCFG_CFG_STR(name, english, chinese) k##name,
#include "store/config_strings.utf8.inc"
#undef MAPCFG_CFG_STR
  kCount
};
static_assert(kCount == kCfgStrCount, "one constant per configuration string");

// The string in the current language (the language byte).
inline String Name(Str row) { return sGetCfgStr(*sGetCfgLang(), row); }

}  // namespace cfg
}  // namespace mapcfg

#endif  // MAPCFG_STORE_CONFIG_STRINGS_H_
