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

// catalogs/map_records.cpp: layers and spacing.
const Keys kLayerKeys = {cfg::kPatternRatio, cfg::kVertWellMode, cfg::kMapHVRatio, cfg::kMapHorzExpand,
                         cfg::kMajorHigh, cfg::kMapVertMajorIncrement, cfg::kHorzSpaceRatio, cfg::kVertSpaceRatio};

// catalogs/map_records.cpp: frame, legend, scale.
const Keys kMapRecordKeys = {
    cfg::kMapName, cfg::kMapMarkLabel,
    cfg::kDrawMapInfo, cfg::kFrameFlags, cfg::kMapTickLength, cfg::kVScaleSpace, cfg::kHScaleSpace,
    cfg::kVGridLineSpace, cfg::kHGridLineSpace, cfg::kBoundOutExt, cfg::kMapNameFontHeight, cfg::kMapNameFontName,
    cfg::kMapNameFontClr, cfg::kMapLabelFontHeight, cfg::kMapInfoFontHeight, cfg::kMapInfoFontName,
    cfg::kMapInfoFontClr, cfg::kMajorScaleFontHeight, cfg::kMinorScaleFontHeight, cfg::kFrameBorderWidth,
    cfg::kLegend, cfg::kLegendBorderWidth, cfg::kLegendGroundClr, cfg::kLineSpaceRatio, cfg::kSegmentSpaceRatio,
    cfg::kSymbolSpaceRatio, cfg::kBaseCharNumber, cfg::kCharHeightRatio, cfg::kLegendMetaCols, cfg::kSymbolRadius,
    cfg::kLineWidth, cfg::kFontHeight, cfg::kScaleHeight, cfg::kScaleMinorNumber, cfg::kScaleMajorNumber,
    cfg::kScaleMajorSpace, cfg::kScaleMinorFactor, cfg::kScaleMajorFactor, cfg::kScaleMinorUnit,
    cfg::kScaleMajorUnit, cfg::kScaleLineWidth};

// maps/single_well.cpp: the single-well chart's properties.
const Keys kSingleWellKeys = {cfg::kRlev, cfg::kEffectiveVal1, cfg::kEffectiveVal2, cfg::kPerforationSymbol,
                              cfg::kPerforationPlug, cfg::kPerforationUnplug};

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
       Join({&kLayerKeys, &kMapRecordKeys, &kWellLocKeys, &kDisplayKeys})},
      {"reserv", "reservoir profile map", cfg::kReservoirProfileMap, mapcfg::sCfgReadMapReserv,
       Join({&kLayerKeys, &kMapRecordKeys, &kCurveKeys, &kSectionKeys, &kRulerModelKeys})},
      {"fence", "fence map", cfg::kFenceMap, mapcfg::sCfgReadMapFence,
       Join({&kLayerKeys, &kMapRecordKeys, &kCurveKeys, &kSectionKeys})},
      {"correl", "multi-well correlation map", cfg::kMultiWellCorrelationMap, mapcfg::sCfgReadMapCorrel,
       Join({&kLayerKeys, &kMapRecordKeys, &kCurveKeys, &kSectionKeys, &kRulerModelKeys})},
      {"single", "single-well map", cfg::kSingleWellMap, [](mapcfg::CCfgScript& s) { mapcfg::sCfgReadMapSingle(s); },
       Join({&kLayerKeys, &kSingleWellKeys})},
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
