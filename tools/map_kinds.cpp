// The keys of the map kinds' readers, by configuration string. Each list
// names the keys one reader file looks up; tests/map_keys.cmake checks that
// together they hold every key those files name, and nothing else.
#include "map_kinds.h"

#include "commands.h"
#include "store/config_strings.h"

namespace mapcfg_tool {

namespace {

namespace cfg = mapcfg::cfg;
using Keys = std::vector<int>;

// catalogs/map_records.cpp: layers, spacing, frame, legend, scale.
const Keys kMapRecordKeys = {
    cfg::kPatternRatio, cfg::kVertWellMode, cfg::kMapHVRatio, cfg::kMapHorzExpand, cfg::kMajorHigh,
    cfg::kMapVertMajorIncrement, cfg::kHorzSpaceRatio, cfg::kVertSpaceRatio, cfg::kMapName, cfg::kMapMarkLabel,
    cfg::kDrawMapInfo, cfg::kFrameFlags, cfg::kMapTickLength, cfg::kVScaleSpace, cfg::kHScaleSpace,
    cfg::kVGridLineSpace, cfg::kHGridLineSpace, cfg::kBoundOutExt, cfg::kMapNameFontHeight, cfg::kMapNameFontName,
    cfg::kMapNameFontClr, cfg::kMapLabelFontHeight, cfg::kMapInfoFontHeight, cfg::kMapInfoFontName,
    cfg::kMapInfoFontClr, cfg::kMajorScaleFontHeight, cfg::kMinorScaleFontHeight, cfg::kFrameBorderWidth,
    cfg::kLegend, cfg::kLegendBorderWidth, cfg::kLegendGroundClr, cfg::kLineSpaceRatio, cfg::kSegmentSpaceRatio,
    cfg::kSymbolSpaceRatio, cfg::kBaseCharNumber, cfg::kCharHeightRatio, cfg::kLegendMetaCols, cfg::kSymbolRadius,
    cfg::kLineWidth, cfg::kFontHeight, cfg::kScaleHeight, cfg::kScaleMinorNumber, cfg::kScaleMajorNumber,
    cfg::kScaleMajorSpace, cfg::kScaleMinorFactor, cfg::kScaleMajorFactor, cfg::kScaleMinorUnit,
    cfg::kScaleMajorUnit, cfg::kScaleLineWidth};

// catalogs/map_records.cpp, the curve parameters: the section maps only.
const Keys kCurveKeys = {cfg::kCrvInvalidValue, cfg::kCurve, cfg::kFillingCurve};

// maps/section_params.cpp, every section map kind.
const Keys kSectionKeys = {
    cfg::kCreateByHoleSection, cfg::kFlattenByElev, cfg::kTopVD, cfg::kBottomVD, cfg::kAutoCreateFlags,
    cfg::kFixedSpace, cfg::kHoleAxialLine, cfg::kLayerDispFlags, cfg::kPlaneDispFlags, cfg::kFaultDisplacement,
    cfg::kRlev, cfg::kEffectiveVal1, cfg::kEffectiveVal2, cfg::kLeastInterlayer, cfg::kFmtTLineWidth,
    cfg::kFmtBLineWidth, cfg::kSublTLineWidth, cfg::kSublBLineWidth, cfg::kInteTLineWidth, cfg::kInteBLineWidth,
    cfg::kSublayerFillLith, cfg::kPerforationSymbol, cfg::kPerforationPlug, cfg::kPerforationUnplug,
    cfg::kFmtGroungClr, cfg::kWHeadDispFlags, cfg::kWNameUOffset, cfg::kWNameFontHeight, cfg::kWSymbolUOffset,
    cfg::kWSymbolRadius, cfg::kHoleWidth, cfg::kWellLftLinePosition, cfg::kWellRgtLinePosition, cfg::kHoleUSpace,
    cfg::kHoleDSpace, cfg::kHoleBorderWidth, cfg::kCHeadNameFontHeight, cfg::kCHeadScaleFontHeight,
    cfg::kLayerLeftPos, cfg::kLayerRightPos, cfg::kInteSymbolLPos, cfg::kInteSymbolRPos, cfg::kBeforeGridNumber,
    cfg::kAfterGridNumber, cfg::kFaultLineWidth, cfg::kBoundaryLineWidth};

// maps/section_params.cpp, the ruler and the model flags: not the fence map.
const Keys kRulerModelKeys = {
    cfg::kRulerHOffset, cfg::kRulerLineOffset, cfg::kRulerTickLength, cfg::kRulerScaleSpace, cfg::kRulerLineWidth,
    cfg::kRulerMarkWidth, cfg::kRulerFmtFontHeight, cfg::kRulerScaleFontHeight, cfg::kSmoothModelLine};

// maps/wellloc.cpp: the well location map's parameters.
const Keys kWellLocKeys = {cfg::kDepthBaseMode, cfg::kStraBaseName, cfg::kSglBaseDepth, cfg::kSglDisplayMode,
                           cfg::kWSymbolRadius, cfg::kWNameFontHeight, cfg::kHangingFootWallsDistance,
                           cfg::kContourPosition, cfg::kAutoScanRdius};

// catalogs/display.cpp: production and test display.
const Keys kDisplayKeys = {
    cfg::kStatusCorreDate, cfg::kStatusStatMode, cfg::kStatusDataMode, cfg::kStatusPictShape,
    cfg::kStatusFactorMode, cfg::kStatusCorreMode, cfg::kStatusLineName, cfg::kStatusLineWidth,
    cfg::kStatusLineColor, cfg::kStatusOilPattName, cfg::kStatusOilPattColor, cfg::kStatusWaterPattName,
    cfg::kStatusWaterPattColor, cfg::kStatusInpourPattName, cfg::kStatusInpourPattColor, cfg::kStatusLblFontName,
    cfg::kStatusLblFontHeight, cfg::kTestPictShape, cfg::kTestFactorMode, cfg::kTestRatiusMode, cfg::kTestLineName,
    cfg::kTestLineWidth, cfg::kTestLineColor, cfg::kTestOilPattName, cfg::kTestOilPattColor,
    cfg::kTestWaterPattName, cfg::kTestWaterPattColor, cfg::kTestLblFontName, cfg::kTestLblFontHeight};

Keys Join(std::initializer_list<const Keys*> lists) {
  Keys all;
  for (const Keys* l : lists) all.insert(all.end(), l->begin(), l->end());
  return all;
}

bool Matches(char lang, int row, const std::string& text) {
  return Folded(mapcfg::sGetCfgStr(lang, row)) == Folded(text);
}

}  // namespace

const std::vector<MapKind>& MapKinds() {
  static const std::vector<MapKind> kinds = {
      {"wellloc", "well location map", cfg::kWellLocationMap, mapcfg::sCfgReadMapWellLoc,
       Join({&kMapRecordKeys, &kWellLocKeys, &kDisplayKeys})},
      {"reserv", "reservoir profile map", cfg::kReservoirProfileMap, mapcfg::sCfgReadMapReserv,
       Join({&kMapRecordKeys, &kCurveKeys, &kSectionKeys, &kRulerModelKeys})},
      {"fence", "fence map", cfg::kFenceMap, mapcfg::sCfgReadMapFence, Join({&kMapRecordKeys, &kCurveKeys, &kSectionKeys})},
      {"correl", "multi-well correlation map", cfg::kMultiWellCorrelationMap, mapcfg::sCfgReadMapCorrel,
       Join({&kMapRecordKeys, &kCurveKeys, &kSectionKeys, &kRulerModelKeys})},
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
