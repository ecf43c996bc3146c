// The map kinds (the single-well map last), with the keys the library's
// readers of each look up, and the template blocks with the keys their
// readers name (checked against the readers' sources by tests/map_keys.cmake).
#include "map_kinds.h"

#include "commands.h"
#include "store/config_strings.h"

namespace mapcfg_tool {

namespace {

namespace cfg = mapcfg::cfg;
using Keys = std::vector<int>;

Keys Join(std::initializer_list<const Keys*> lists) {
  Keys all;
  for (const Keys* l : lists) all.insert(all.end(), l->begin(), l->end());
  return all;
}

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
      {"single", "single-well map", cfg::kSingleWellMap, [](mapcfg::CCfgScript& s) { mapcfg::sCfgReadMapSingle(s); },
       ReaderKeys(cfg::kSingleWellMap)},
  };
  return kinds;
}

const std::vector<TemplateTable>& TemplateTables() {
  static const std::vector<TemplateTable> tables = {
      {"planeshape", "plane-shape templates", mapcfg::sCfgReadPlaneShapes, mapcfg::sDescribePlaneShapes},
      {"migrate", "data migration templates", mapcfg::sCfgReadDataMigrate, mapcfg::sDescribeDataMigrate},
  };
  return tables;
}

namespace {

// maps/plane_shapes.cpp: every template block, the block that names the
// pinch-out templates and the division block's own keys.
const Keys kTemplKeys = {cfg::kDivisionLength, cfg::kDiviInterval, cfg::kMinTipNumber, cfg::kMaxTipNumber, cfg::kTip};
const Keys kPinchOutKeys = {cfg::kUpPinchOutTemplate, cfg::kMidPinchOutTemplate, cfg::kDownPinchOutTemplate};
const Keys kDivisionOwnKeys = {cfg::kHorizontalBoundaryLine, cfg::kNoBoundDiviType};
const Keys kDivisionKeys = Join({&kTemplKeys, &kDivisionOwnKeys});
const Keys kDivisionRepeats = {cfg::kNoBoundDiviType};

// maps/data_migrate.cpp: the parameters of a migration template.
const Keys kMigraParams = {cfg::kSourceSQLSentence, cfg::kTargetSQLSentence, cfg::kMainKeyParallelism,
                           cfg::kWellCodeParallelism, cfg::kImmigrateParameter, cfg::kDIPParameter};

const Keys kCurveRepeats = {cfg::kCurve, cfg::kFillingCurve};
const Keys kNone;

struct TemplateBlock {
  int name_row;
  const Keys* keys;
  const Keys* repeated;
  bool migration;
};
const TemplateBlock kTemplateBlocks[] = {
    {cfg::kPinchOut, &kPinchOutKeys, &kNone, false},
    {cfg::kUpPinchOutTemplate, &kTemplKeys, &kNone, false},
    {cfg::kMidPinchOutTemplate, &kTemplKeys, &kNone, false},
    {cfg::kDownPinchOutTemplate, &kTemplKeys, &kNone, false},
    {cfg::kHorizontalBoundaryLine, &kTemplKeys, &kNone, false},
    {cfg::kDivision, &kDivisionKeys, &kDivisionRepeats, false},
    {cfg::kDataMigrate, &kMigraParams, &kNone, true},
    {cfg::kDataImmigrate, &kMigraParams, &kNone, true},
};

bool Listed(const Keys& keys, char lang, const std::string& key) {
  for (int row : keys)
    if (Matches(lang, row, key)) return true;
  return false;
}

// Where `key` holds its first "|", the byte after a GBK lead byte not
// counted; npos when it holds none.
size_t BarAt(const std::string& key) {
  for (size_t i = 0; i < key.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(key[i]);
    if (c >= 0x81 && c <= 0xFE) {
      ++i;
    } else if (c == '|') {
      return i;
    }
  }
  return std::string::npos;
}

}  // namespace

bool BlockKeys::Knows(const std::string& key) const {
  if (!migration_) return Listed(*keys_, lang_, key);
  const size_t bar = BarAt(key);
  if (bar == std::string::npos) return true;
  // Template names are trimmed, so "name |..." belongs to no template.
  const bool named = bar > 0 && key[bar - 1] != ' ' && key[bar - 1] != '\t';
  return named && Listed(*keys_, lang_, key.substr(bar));
}

bool BlockKeys::Repeats(const std::string& key) const { return Listed(*repeated_, lang_, key); }

BlockKeys FindBlockKeys(const std::string& block) {
  for (char lang : {0, 1}) {
    for (const MapKind& kind : MapKinds())
      if (Matches(lang, kind.name_row, block)) return BlockKeys(&kind.keys, &kCurveRepeats, false, lang);
    for (const TemplateBlock& t : kTemplateBlocks)
      if (Matches(lang, t.name_row, block)) return BlockKeys(t.keys, t.repeated, t.migration, lang);
  }
  return BlockKeys();
}

}  // namespace mapcfg_tool
