// The map records every map kind shares: layers, spacing, frame, legend,
// scale and curve parameters, read from the kind's block.
#include <memory>

#include "base/text_bytes.h"
#include "catalogs/attribute_values.h"
#include "catalogs/map_record_fields.h"
#include "catalogs/reader_keys.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "store/key_table.h"
#include "store/script_fields.h"

namespace mapcfg {

namespace {

// The unknown value of curve limits and invalid samples.
constexpr double kMissingValue = -999.25;

using detail::At;
using detail::FixedAt;
using detail::KeyRow;
using detail::Rule;
using detail::Scan;
constexpr Rule kKeep = Rule::kEmptyKeeps;  // the attribute initialiser's value stays
constexpr Rule kEmpty = Rule::kEmptyGives;

const KeyRow<_LayersProp> kLayerRows[] = {
    {cfg::kPatternRatio, Scan::kFloat, &_LayersProp::PatternRatio, kEmpty, 1.0},
    {cfg::kVertWellMode, Scan::kInt, &_LayersProp::VertWellMode},
    {cfg::kMapHVRatio, Scan::kFloat, &_LayersProp::MapHVRatio, kEmpty, 1.0},
    {cfg::kMapHorzExpand, Scan::kFloat, &_LayersProp::MapHorzExpand},
    {cfg::kMajorHigh, Scan::kFloat, &_LayersProp::MajorHigh},
    {cfg::kMapVertMajorIncrement, Scan::kFloat, &_LayersProp::MapVertMajorIncrement},
};

const KeyRow<_HVSpaceProp> kSpaceRows[] = {
    {cfg::kHorzSpaceRatio, Scan::kDouble, &_HVSpaceProp::hSpace, kEmpty, 1.0},
    {cfg::kVertSpaceRatio, Scan::kDouble, &_HVSpaceProp::vSpace, kEmpty, 1.0},
};

const KeyRow<_MapFrameProp> kFrameRows[] = {
    {cfg::kMapName, Scan::kText, &_MapFrameProp::MapName},
    {cfg::kMapMarkLabel, Scan::kText, &_MapFrameProp::MapMarkLabel},
    {cfg::kDrawMapInfo, Scan::kInt, &_MapFrameProp::DrawMapInfo},
    {cfg::kFrameFlags, Scan::kHex, &_MapFrameProp::FrameFlags, kEmpty, 0x01},
    {cfg::kMapTickLength, Scan::kFloat, &_MapFrameProp::MapTickLength},
    {cfg::kVScaleSpace, Scan::kFloat, &_MapFrameProp::VScaleSpace},
    {cfg::kHScaleSpace, Scan::kFloat, &_MapFrameProp::HScaleSpace},
    {cfg::kVGridLineSpace, Scan::kFloat, &_MapFrameProp::VGridLineSpace},
    {cfg::kHGridLineSpace, Scan::kFloat, &_MapFrameProp::HGridLineSpace},
    {cfg::kBoundOutExt, Scan::kFloat, &_MapFrameProp::BoundOutExt},
    {cfg::kMapNameFontHeight, Scan::kFloat, &At<&_MapFrameProp::MapNameFont, &FONT_PROP::height>, kKeep},
    {cfg::kMapNameFontName, Scan::kText, &FixedAt<&_MapFrameProp::MapNameFont, &FONT_PROP::faceName>, kKeep},
    {cfg::kMapNameFontClr, Scan::kHex, &At<&_MapFrameProp::MapNameFont, &FONT_PROP::color>, kKeep},
    {cfg::kMapLabelFontHeight, Scan::kFloat, &At<&_MapFrameProp::MapLabelFont, &FONT_PROP::height>, kKeep},
    {cfg::kMapInfoFontHeight, Scan::kFloat, &At<&_MapFrameProp::MapInfoFont, &FONT_PROP::height>, kKeep},
    {cfg::kMapInfoFontName, Scan::kText, &FixedAt<&_MapFrameProp::MapInfoFont, &FONT_PROP::faceName>, kKeep},
    {cfg::kMapInfoFontClr, Scan::kHex, &At<&_MapFrameProp::MapInfoFont, &FONT_PROP::color>, kKeep},
    {cfg::kMajorScaleFontHeight, Scan::kFloat, &_MapFrameProp::MajorScaleFontHeight},
    {cfg::kMinorScaleFontHeight, Scan::kFloat, &_MapFrameProp::MinorScaleFontHeight},
    {cfg::kFrameBorderWidth, Scan::kFloat, &At<&_MapFrameProp::FrameBorder, &LINE_PROP::width>, kKeep},
};

const KeyRow<_LegendProp> kLegendRows[] = {
    {cfg::kLegend, Scan::kInt, &_LegendProp::Legend, kEmpty, 1},
    {cfg::kLegendBorderWidth, Scan::kFloat, &At<&_LegendProp::Border, &LINE_PROP::width>, kKeep},
    {cfg::kLegendGroundClr, Scan::kHex, &At<&_LegendProp::Ground, &PATT_PROP::backColor>, kKeep},
    {cfg::kLineSpaceRatio, Scan::kFloat, &_LegendProp::LineSpaceRatio, kEmpty, 0.5},
    {cfg::kSegmentSpaceRatio, Scan::kFloat, &_LegendProp::SegmentSpaceRatio, kEmpty, 1.0},
    {cfg::kSymbolSpaceRatio, Scan::kFloat, &_LegendProp::SymbolSpaceRatio, kEmpty, 0.5},
    {cfg::kBaseCharNumber, Scan::kInt, &_LegendProp::BaseCharNumber, kEmpty, 8},
    {cfg::kCharHeightRatio, Scan::kFloat, &_LegendProp::CharHeightRatio, kEmpty, 1.0},
    {cfg::kLegendMetaCols, Scan::kInt, &_LegendProp::LegendMetaCols, kEmpty, 1},
    {cfg::kSymbolRadius, Scan::kFloat, &At<&_LegendProp::Meta, &_LegendMetaProp::SymbolRadius>, kEmpty, 2.0},
    {cfg::kLineWidth, Scan::kFloat, &At<&_LegendProp::Meta, &_LegendMetaProp::Line, &LINE_PROP::width>, kKeep},
    {cfg::kFontHeight, Scan::kFloat, &At<&_LegendProp::Meta, &_LegendMetaProp::Font, &FONT_PROP::height>, kKeep},
};

const KeyRow<_ScaleProp> kScaleRows[] = {
    {cfg::kScaleHeight, Scan::kFloat, &_ScaleProp::ScaleHeight, kEmpty, 2.0},
    {cfg::kScaleMinorNumber, Scan::kInt, &_ScaleProp::ScaleMinorNumber, kEmpty, 5},
    {cfg::kScaleMajorNumber, Scan::kInt, &_ScaleProp::ScaleMajorNumber, kEmpty, 2},
    {cfg::kScaleMajorSpace, Scan::kFloat, &_ScaleProp::ScaleMajorSpace, kEmpty, 10.0},
    {cfg::kScaleMinorFactor, Scan::kFloat, &_ScaleProp::ScaleMinorFactor, kEmpty, 1.0},
    {cfg::kScaleMajorFactor, Scan::kFloat, &_ScaleProp::ScaleMajorFactor, kEmpty, 1.0},
    {cfg::kScaleMinorUnit, Scan::kText, &_ScaleProp::ScaleMinorUnit},
    {cfg::kScaleMajorUnit, Scan::kText, &_ScaleProp::ScaleMajorUnit},
    {cfg::kScaleLineWidth, Scan::kFloat, &At<&_ScaleProp::Line, &LINE_PROP::width>, kKeep},
};

// The value of curve samples that are missing, for every curve of a block.
struct CurveDefaults {
  double invalid = kMissingValue;
};
const KeyRow<CurveDefaults> kCurveRows[] = {
    {cfg::kCrvInvalidValue, Scan::kDouble, &CurveDefaults::invalid, kEmpty, kMissingValue},
};

// Fields of a curve line, "code; name; left; right; LineStyle; LineWidth;
// LineColor". Empty limits are unknown.
std::unique_ptr<_CurveParm> ParseCurve(const String& value, double invalid) {
  auto r = std::make_unique<_CurveParm>();
  detail::ValueFields f(value);
  r->Code = f.Text(';');
  r->Name = f.Text(';');
  const auto limit = [&f] {
    const String text = f.Text(';');
    return text.empty() ? kMissingValue : sToDouble(text);
  };
  r->Prop.LeftValue = limit();
  r->Prop.RightValue = limit();
  r->Prop.InvalidValue = invalid;
  sInitLineProp(&r->Prop.Line);
  detail::ReadLineFields(f, r->Prop.Line);
  return r;
}

// "code; other code; PatternName; PatternBGColor" adds a fill to the last
// curve of that code.
void AddFill(RecordArray<_CurveParm>& parms, size_t first, const String& value, float ratio) {
  detail::ValueFields f(value);
  const String code = f.Text(';');
  for (size_t i = parms.size(); i-- > first;) {
    if (!detail::EqualsNoCase(parms[i]->Code, code.c_str())) continue;
    auto fill = std::make_unique<_CrvFillItem>();
    fill->Curve = f.Text(';');
    sInitPattProp(&fill->Patt, ratio);
    detail::ReadPattFields(f, fill->Patt);
    parms[i]->Fills.push_back(std::move(fill));
    return;
  }
}

}  // namespace

float sCfgReadLayersProp(CCfgScript& script, const String& block, _LayersProp* prop) {
  _LayersProp& r = *prop;
  detail::ReadKeys(script, block, r, kLayerRows);
  // Scales: anything not above 0 (NaN included) draws at 1.
  if (!(r.PatternRatio > 0)) r.PatternRatio = 1.0f;
  if (!(r.MapHVRatio > 0)) r.MapHVRatio = 1.0f;
  return r.PatternRatio;
}

void sCfgReadHVSpaceProp(CCfgScript& script, const String& block, _HVSpaceProp* prop) {
  detail::ReadKeys(script, block, *prop, kSpaceRows);
}

void sCfgReadMapFrameProp(CCfgScript& script, const String& block, _MapFrameProp* prop) {
  _MapFrameProp& r = *prop;
  sInitFontProp(&r.MapNameFont);
  sInitFontProp(&r.MapLabelFont);
  sInitFontProp(&r.MapInfoFont);
  sInitLineProp(&r.FrameBorder);
  detail::ReadKeys(script, block, r, kFrameRows);
}

void sCfgReadLegendProp(CCfgScript& script, const String& block, _LegendProp* prop, float ratio) {
  _LegendProp& r = *prop;
  sInitLineProp(&r.Border);
  sInitPattProp(&r.Ground, ratio);
  sInitLineProp(&r.Meta.Line);
  sInitFontProp(&r.Meta.Font);
  detail::ReadKeys(script, block, r, kLegendRows);
  // Counts of characters and columns: at least one.
  if (r.BaseCharNumber < 1) r.BaseCharNumber = 1;
  if (r.LegendMetaCols < 1) r.LegendMetaCols = 1;
}

void sCfgReadScaleProp(CCfgScript& script, const String& block, _ScaleProp* prop) {
  _ScaleProp& r = *prop;
  sInitLineProp(&r.Line);
  detail::ReadKeys(script, block, r, kScaleRows);
}

void sCfgReadCurveParms(CCfgScript& script, const String& block, RecordArray<_CurveParm>& parms, float ratio) {
  CurveDefaults defaults;
  detail::ReadKeys(script, block, defaults, kCurveRows);
  const double invalid = defaults.invalid;
  const String curve = cfg::Name(cfg::kCurve), filling = cfg::Name(cfg::kFillingCurve);
  const size_t first = parms.size();  // fills reach only the curves of this block
  const int count = script.GetKeyCnt(block.c_str());
  for (int i = 0; i < count; ++i) {
    const String key = script.GetKeyName(block.c_str(), i);
    if (detail::EqualsNoCase(key, curve.c_str())) {
      parms.push_back(ParseCurve(script.GetKeyVal(block.c_str(), i), invalid));
    } else if (detail::EqualsNoCase(key, filling.c_str())) {
      AddFill(parms, first, script.GetKeyVal(block.c_str(), i), ratio);
    }
  }
}

void sCfgClearCurveParms(RecordArray<_CurveParm>& parms) { parms.clear(); }

void detail::AppendLayerKeys(KeyList& keys) {
  AppendKeys(keys, kLayerRows);
  AppendKeys(keys, kSpaceRows);
}

void detail::AppendMapRecordKeys(KeyList& keys) {
  AppendLayerKeys(keys);
  AppendKeys(keys, kFrameRows);
  AppendKeys(keys, kLegendRows);
  AppendKeys(keys, kScaleRows);
}

void detail::AppendCurveKeys(KeyList& keys) {
  AppendKeys(keys, kCurveRows);
  keys.push_back(cfg::kCurve);  // repeated keys, one curve or fill each
  keys.push_back(cfg::kFillingCurve);
}

void sCfgCopyLayersProp(_LayersProp* dst, const _LayersProp* src) { *dst = *src; }
void sCfgCopyMapFrameProp(_MapFrameProp* dst, const _MapFrameProp* src) { *dst = *src; }
void sCfgCopyLegendProp(_LegendProp* dst, const _LegendProp* src) { *dst = *src; }
void sCfgCopyScaleProp(_ScaleProp* dst, const _ScaleProp* src) { *dst = *src; }

void sCfgCopyCurveParms(RecordArray<_CurveParm>& dst, const RecordArray<_CurveParm>& src) {
  if (&dst == &src) return;
  RecordArray<_CurveParm> copy;
  for (const std::unique_ptr<_CurveParm>& s : src) {
    auto d = std::make_unique<_CurveParm>();
    d->Code = s->Code;
    d->Name = s->Name;
    d->Prop = s->Prop;
    for (const std::unique_ptr<_CrvFillItem>& fill : s->Fills) d->Fills.push_back(std::make_unique<_CrvFillItem>(*fill));
    copy.push_back(std::move(d));
  }
  dst = std::move(copy);
}

int CFFArchive::PutLayersProp(const _LayersProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetLayersProp(_LayersProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutMapFrameProp(const _MapFrameProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetMapFrameProp(_MapFrameProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutLegendProp(const _LegendProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetLegendProp(_LegendProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutLegendMetaProp(const _LegendMetaProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetLegendMetaProp(_LegendMetaProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutScaleProp(const _ScaleProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetScaleProp(_ScaleProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutCurveParm(const _CurveParm* parm) { return parm ? detail::PutRecord(*this, *parm) : 0; }
int CFFArchive::GetCurveParm(_CurveParm* parm, uint32_t version) {
  return parm ? detail::GetRecord(*this, *parm, version) : 0;
}
int CFFArchive::PutCurveParmArray(const RecordArray<_CurveParm>& parms) { return detail::PutRecord(*this, parms); }
int CFFArchive::GetCurveParmArray(RecordArray<_CurveParm>& parms, uint32_t version) {
  return detail::GetRecord(*this, parms, version);
}

FieldTexts sDescribe(const _LayersProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _HVSpaceProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _MapFrameProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _LegendProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _LegendMetaProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _ScaleProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _CurveParm& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
