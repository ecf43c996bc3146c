// The four map kinds, with the keys the library's readers of each look up.
#include "map_kinds.h"

#include "commands.h"
#include "store/config_strings.h"

namespace mapcfg_tool {

namespace {

namespace cfg = mapcfg::cfg;

// The keys the library's readers of a kind look up, by configuration string.
std::vector<int> ReaderKeys(int name_row) {
  return mapcfg::sDescribeMapKindKeys(mapcfg::sGetCfgStr(*mapcfg::sGetCfgLang(), name_row));
}

bool Matches(char lang, int row, const std::string& text) {
  return Folded(mapcfg::sGetCfgStr(lang, row)) == Folded(text);
}

}  // namespace

const std::vector<MapKind>& MapKinds() {
  static const std::vector<MapKind> kinds = {
      {"wellloc", "well location map", cfg::kWellLocationMap, mapcfg::sCfgReadMapWellLoc,
       ReaderKeys(cfg::kWellLocationMap)},
      {"reserv", "reservoir profile map", cfg::kReservoirProfileMap, mapcfg::sCfgReadMapReserv,
       ReaderKeys(cfg::kReservoirProfileMap)},
      {"fence", "fence map", cfg::kFenceMap, mapcfg::sCfgReadMapFence, ReaderKeys(cfg::kFenceMap)},
      {"correl", "multi-well correlation map", cfg::kMultiWellCorrelationMap, mapcfg::sCfgReadMapCorrel,
       ReaderKeys(cfg::kMultiWellCorrelationMap)},
  };
  return kinds;
}

const MapKind* FindMapKind(const std::string& block, char* lang) {
  for (const MapKind& kind : MapKinds())
    for (char l : {0, 1})
      if (Matches(l, kind.name_row, block)) {
        *lang = l;
        return &kind;
      }
  return nullptr;
}

bool IsMapKey(const MapKind& kind, char lang, const std::string& key) {
  for (int row : kind.keys)
    if (Matches(lang, row, key)) return true;
  return false;
}

bool IsRepeatedMapKey(char lang, const std::string& key) {
  return Matches(lang, cfg::kCurve, key) || Matches(lang, cfg::kFillingCurve, key);
}

}  // namespace mapcfg_tool
