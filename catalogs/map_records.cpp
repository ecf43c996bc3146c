// The map records every map kind shares: layers, spacing, frame, legend,
// scale and curve parameters, read from the kind's block.
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <variant>

#include "base/text_bytes.h"
#include "catalogs/attribute_values.h"
#include "catalogs/map_record_fields.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "store/script_fields.h"

namespace mapcfg {

namespace {

// The unknown value of curve limits and invalid samples.
constexpr double kMissingValue = -999.25;

// How a key's value is scanned.
enum class Scan { kInt, kHex, kFloat, kDouble, kText };

// A fixed name field of an attribute record.
struct FixedName {
  char* text;
  size_t size;
};

// Where a key's value goes: a field of the record or of an attribute
// record inside it.
using Target = std::variant<uint8_t*, int32_t*, uint32_t*, float*, double*, String*, FixedName>;

// The default of a key that an attribute initialiser already set.
constexpr double kAsInitialised = std::numeric_limits<double>::quiet_NaN();

// One key of a block: its name, its scan, its field and the value a
// missing or empty key gives.
struct KeyRow {
  cfg::Str key;
  Scan scan;
  Target to;
  double def;
};

template <class T>
void Store(T* to, const KeyRow& row, const String& value) {
  if (value.empty()) {
    if (!std::isnan(row.def)) *to = static_cast<T>(row.def);
    return;
  }
  // Integer scans keep their low bits: "%d" of 258 into a byte gives 2.
  switch (row.scan) {
    case Scan::kInt: *to = static_cast<T>(sToInteger(value)); break;
    case Scan::kHex: *to = static_cast<T>(sToDWord(value)); break;
    case Scan::kFloat: *to = static_cast<T>(sToFloat(value)); break;
    default: *to = static_cast<T>(sToDouble(value)); break;
  }
}
void Store(String* to, const KeyRow&, const String& value) { *to = value; }

// A name longer than its field is cut; an empty one keeps what the field
// holds (the initialiser's face or style).
void CopyName(FixedName to, const String& value) {
  if (value.empty()) return;
  const size_t n = value.size() < to.size - 1 ? value.size() : to.size - 1;
  std::memcpy(to.text, value.data(), n);
  to.text[n] = '\0';
}
void Store(FixedName to, const KeyRow&, const String& value) { CopyName(to, value); }

void ReadKeys(const CCfgScript& script, const String& block, std::initializer_list<KeyRow> rows) {
  for (const KeyRow& row : rows) {
    const String value = script.GetKeyVal(block.c_str(), cfg::Name(row.key).c_str());
    std::visit([&](auto to) { Store(to, row, value); }, row.to);
  }
}

template <size_t N>
FixedName Face(char (&name)[N]) {
  return FixedName{name, N};
}

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
  ReadKeys(script, block,
           {
               {cfg::kPatternRatio, Scan::kFloat, &r.PatternRatio, 1.0},
               {cfg::kVertWellMode, Scan::kInt, &r.VertWellMode, 0},
               {cfg::kMapHVRatio, Scan::kFloat, &r.MapHVRatio, 1.0},
               {cfg::kMapHorzExpand, Scan::kFloat, &r.MapHorzExpand, 0},
               {cfg::kMajorHigh, Scan::kFloat, &r.MajorHigh, 0},
               {cfg::kMapVertMajorIncrement, Scan::kFloat, &r.MapVertMajorIncrement, 0},
           });
  // Scales: anything not above 0 (NaN included) draws at 1.
  if (!(r.PatternRatio > 0)) r.PatternRatio = 1.0f;
  if (!(r.MapHVRatio > 0)) r.MapHVRatio = 1.0f;
  return r.PatternRatio;
}

void sCfgReadHVSpaceProp(CCfgScript& script, const String& block, _HVSpaceProp* prop) {
  ReadKeys(script, block,
           {
               {cfg::kHorzSpaceRatio, Scan::kDouble, &prop->hSpace, 1.0},
               {cfg::kVertSpaceRatio, Scan::kDouble, &prop->vSpace, 1.0},
           });
}

void sCfgReadMapFrameProp(CCfgScript& script, const String& block, _MapFrameProp* prop) {
  _MapFrameProp& r = *prop;
  sInitFontProp(&r.MapNameFont);
  sInitFontProp(&r.MapLabelFont);
  sInitFontProp(&r.MapInfoFont);
  sInitLineProp(&r.FrameBorder);
  ReadKeys(script, block,
           {
               {cfg::kMapName, Scan::kText, &r.MapName, 0},
               {cfg::kMapMarkLabel, Scan::kText, &r.MapMarkLabel, 0},
               {cfg::kDrawMapInfo, Scan::kInt, &r.DrawMapInfo, 0},
               {cfg::kFrameFlags, Scan::kHex, &r.FrameFlags, 0x01},
               {cfg::kMapTickLength, Scan::kFloat, &r.MapTickLength, 0},
               {cfg::kVScaleSpace, Scan::kFloat, &r.VScaleSpace, 0},
               {cfg::kHScaleSpace, Scan::kFloat, &r.HScaleSpace, 0},
               {cfg::kVGridLineSpace, Scan::kFloat, &r.VGridLineSpace, 0},
               {cfg::kHGridLineSpace, Scan::kFloat, &r.HGridLineSpace, 0},
               {cfg::kBoundOutExt, Scan::kFloat, &r.BoundOutExt, 0},
               {cfg::kMapNameFontHeight, Scan::kFloat, &r.MapNameFont.height, kAsInitialised},
               {cfg::kMapNameFontName, Scan::kText, Face(r.MapNameFont.faceName), 0},
               {cfg::kMapNameFontClr, Scan::kHex, &r.MapNameFont.color, kAsInitialised},
               {cfg::kMapLabelFontHeight, Scan::kFloat, &r.MapLabelFont.height, kAsInitialised},
               {cfg::kMapInfoFontHeight, Scan::kFloat, &r.MapInfoFont.height, kAsInitialised},
               {cfg::kMapInfoFontName, Scan::kText, Face(r.MapInfoFont.faceName), 0},
               {cfg::kMapInfoFontClr, Scan::kHex, &r.MapInfoFont.color, kAsInitialised},
               {cfg::kMajorScaleFontHeight, Scan::kFloat, &r.MajorScaleFontHeight, 0},
               {cfg::kMinorScaleFontHeight, Scan::kFloat, &r.MinorScaleFontHeight, 0},
               {cfg::kFrameBorderWidth, Scan::kFloat, &r.FrameBorder.width, kAsInitialised},
           });
}

void sCfgReadLegendProp(CCfgScript& script, const String& block, _LegendProp* prop, float ratio) {
  _LegendProp& r = *prop;
  sInitLineProp(&r.Border);
  sInitPattProp(&r.Ground, ratio);
  sInitLineProp(&r.Meta.Line);
  sInitFontProp(&r.Meta.Font);
  ReadKeys(script, block,
           {
               {cfg::kLegend, Scan::kInt, &r.Legend, 1},
               {cfg::kLegendBorderWidth, Scan::kFloat, &r.Border.width, kAsInitialised},
               {cfg::kLegendGroundClr, Scan::kHex, &r.Ground.backColor, kAsInitialised},
               {cfg::kLineSpaceRatio, Scan::kFloat, &r.LineSpaceRatio, 0.5},
               {cfg::kSegmentSpaceRatio, Scan::kFloat, &r.SegmentSpaceRatio, 1.0},
               {cfg::kSymbolSpaceRatio, Scan::kFloat, &r.SymbolSpaceRatio, 0.5},
               {cfg::kBaseCharNumber, Scan::kInt, &r.BaseCharNumber, 8},
               {cfg::kCharHeightRatio, Scan::kFloat, &r.CharHeightRatio, 1.0},
               {cfg::kLegendMetaCols, Scan::kInt, &r.LegendMetaCols, 1},
               {cfg::kSymbolRadius, Scan::kFloat, &r.Meta.SymbolRadius, 2.0},
               {cfg::kLineWidth, Scan::kFloat, &r.Meta.Line.width, kAsInitialised},
               {cfg::kFontHeight, Scan::kFloat, &r.Meta.Font.height, kAsInitialised},
           });
  // Counts of characters and columns: at least one.
  if (r.BaseCharNumber < 1) r.BaseCharNumber = 1;
  if (r.LegendMetaCols < 1) r.LegendMetaCols = 1;
}

void sCfgReadScaleProp(CCfgScript& script, const String& block, _ScaleProp* prop) {
  _ScaleProp& r = *prop;
  sInitLineProp(&r.Line);
  ReadKeys(script, block,
           {
               {cfg::kScaleHeight, Scan::kFloat, &r.ScaleHeight, 2.0},
               {cfg::kScaleMinorNumber, Scan::kInt, &r.ScaleMinorNumber, 5},
               {cfg::kScaleMajorNumber, Scan::kInt, &r.ScaleMajorNumber, 2},
               {cfg::kScaleMajorSpace, Scan::kFloat, &r.ScaleMajorSpace, 10.0},
               {cfg::kScaleMinorFactor, Scan::kFloat, &r.ScaleMinorFactor, 1.0},
               {cfg::kScaleMajorFactor, Scan::kFloat, &r.ScaleMajorFactor, 1.0},
               {cfg::kScaleMinorUnit, Scan::kText, &r.ScaleMinorUnit, 0},
               {cfg::kScaleMajorUnit, Scan::kText, &r.ScaleMajorUnit, 0},
               {cfg::kScaleLineWidth, Scan::kFloat, &r.Line.width, kAsInitialised},
           });
}

void sCfgReadCurveParms(CCfgScript& script, const String& block, RecordArray<_CurveParm>& parms, float ratio) {
  double invalid = kMissingValue;
  ReadKeys(script, block, {{cfg::kCrvInvalidValue, Scan::kDouble, &invalid, kMissingValue}});
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
