// Parameters of the three section map kinds: reservoir profile, fence and
// multi-well correlation maps, each with its own set of records.
#include <cstring>

#include "catalogs/attribute_fields.h"
#include "mapcfg/archive.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "maps/reader_keys.h"
#include "maps/section_fields.h"
#include "store/key_table.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

using detail::KeyRow;
using detail::Rule;
using detail::Scan;

// The records of one map kind.
struct SectionSet {
  _PMTAutoParm autoParm{};
  _PMTMapProp mapProp{};
  _PMTBodyProp bodyProp{};
  _PMTLableProp labelProp{};
  char modelFlags = 0;
  LINE_PROP faultLine{};
  LINE_PROP diviLine{};
};

// Each kind is a store table of its own type.
template <cfg::Str Kind>
struct KindSet : SectionSet {};

// The set of map kind `name` in the current language, or null; the fence
// map only when `fence` (it has no ruler and no model-line flags).
SectionSet* FindKind(const String& name, bool fence = true) {
  if (name == cfg::Name(cfg::kReservoirProfileMap)) return &detail::StoreTable<KindSet<cfg::kReservoirProfileMap>>();
  if (name == cfg::Name(cfg::kFenceMap)) return fence ? &detail::StoreTable<KindSet<cfg::kFenceMap>>() : nullptr;
  if (name == cfg::Name(cfg::kMultiWellCorrelationMap))
    return &detail::StoreTable<KindSet<cfg::kMultiWellCorrelationMap>>();
  return nullptr;
}

template <class R>
R* KindMember(const String& name, R SectionSet::*member, bool fence = true) {
  SectionSet* set = FindKind(name, fence);
  return set ? &(set->*member) : nullptr;
}

// A line of the readers: colour 0, no style, the width left to the key.
void ResetLine(LINE_PROP& line) {
  line.color = 0;
  line.style[0] = '\0';
}

template <class R>
void CopyRecord(R* dst, const R* src) {
  if (dst && src) *dst = *src;
}

const KeyRow<_PMTAutoParm> kAutoRows[] = {
    {cfg::kCreateByHoleSection, Scan::kInt, &_PMTAutoParm::CreateByHoleSection},
    {cfg::kFlattenByElev, Scan::kInt, &_PMTAutoParm::FlattenByElev},
    {cfg::kTopVD, Scan::kFloat, &_PMTAutoParm::TopVD},
    {cfg::kBottomVD, Scan::kFloat, &_PMTAutoParm::BottomVD},
    {cfg::kAutoCreateFlags, Scan::kHex, &_PMTAutoParm::AutoCreateFlags},
    {cfg::kFixedSpace, Scan::kFloat, &_PMTAutoParm::FixedSpace},
};

const KeyRow<_PMTMapProp> kMapRows[] = {
    {cfg::kHoleAxialLine, Scan::kSwitch, &_PMTMapProp::HoleAxialLine},
    {cfg::kLayerDispFlags, Scan::kHex, &_PMTMapProp::LayerDispFlags},
    {cfg::kPlaneDispFlags, Scan::kHex, &_PMTMapProp::PlaneDispFlags},
    {cfg::kFaultDisplacement, Scan::kFloat, &_PMTMapProp::FaultDisplacement},
    {cfg::kRlev, Scan::kDouble, &_PMTMapProp::Rlev, Rule::kEmptyGives, 0.125},
    {cfg::kEffectiveVal1, Scan::kDouble, &_PMTMapProp::EffectiveVal1, Rule::kEmptyGives, -999.25},
    {cfg::kEffectiveVal2, Scan::kDouble, &_PMTMapProp::EffectiveVal2, Rule::kEmptyGives, -999.25},
    {cfg::kLeastInterlayer, Scan::kDouble, &_PMTMapProp::LeastInterlayer, Rule::kPositiveOr, 0.1},
    {cfg::kFmtTLineWidth, Scan::kFloat, &detail::At<&_PMTMapProp::FmtTLine, &LINE_PROP::width>, Rule::kNotNegative},
    {cfg::kFmtBLineWidth, Scan::kFloat, &detail::At<&_PMTMapProp::FmtBLine, &LINE_PROP::width>, Rule::kNotNegative},
    {cfg::kSublTLineWidth, Scan::kFloat, &detail::At<&_PMTMapProp::SublTLine, &LINE_PROP::width>,
     Rule::kNotNegative},
    {cfg::kSublBLineWidth, Scan::kFloat, &detail::At<&_PMTMapProp::SublBLine, &LINE_PROP::width>,
     Rule::kNotNegative},
    {cfg::kInteTLineWidth, Scan::kFloat, &detail::At<&_PMTMapProp::InteTLine, &LINE_PROP::width>,
     Rule::kNotNegative},
    {cfg::kInteBLineWidth, Scan::kFloat, &detail::At<&_PMTMapProp::InteBLine, &LINE_PROP::width>,
     Rule::kNotNegative},
    {cfg::kSublayerFillLith, Scan::kSwitch, &_PMTMapProp::SublayerFillLith},
    {cfg::kPerforationSymbol, Scan::kText, &_PMTMapProp::PerforationSymbol},
    {cfg::kPerforationPlug, Scan::kText, &_PMTMapProp::PerforationPlug},
    {cfg::kPerforationUnplug, Scan::kText, &_PMTMapProp::PerforationUnplug},
    {cfg::kFmtGroungClr, Scan::kHex, &detail::At<&_PMTMapProp::FmtGroundPatt, &PATT_PROP::backColor>,
     Rule::kEmptyKeeps},
};

const KeyRow<_PMTBodyProp> kBodyRows[] = {
    {cfg::kWHeadDispFlags, Scan::kInt, &_PMTBodyProp::WHeadDispFlags},
    {cfg::kWNameUOffset, Scan::kFloat, &_PMTBodyProp::WNameUOffset},
    {cfg::kWNameFontHeight, Scan::kFloat, &detail::At<&_PMTBodyProp::WNameFont, &FONT_PROP::height>,
     Rule::kPositiveOr, 16},
    {cfg::kWSymbolUOffset, Scan::kFloat, &_PMTBodyProp::WSymbolUOffset},
    {cfg::kWSymbolRadius, Scan::kFloat, &_PMTBodyProp::WSymbolRadius},
    {cfg::kHoleWidth, Scan::kDouble, &_PMTBodyProp::HoleWidth},
    {cfg::kWellLftLinePosition, Scan::kDouble, &_PMTBodyProp::WellLftLinePosition},
    {cfg::kWellRgtLinePosition, Scan::kDouble, &_PMTBodyProp::WellRgtLinePosition},
    {cfg::kHoleUSpace, Scan::kFloat, &_PMTBodyProp::HoleUSpace},
    {cfg::kHoleDSpace, Scan::kFloat, &_PMTBodyProp::HoleDSpace},
    {cfg::kHoleBorderWidth, Scan::kFloat, &detail::At<&_PMTBodyProp::HoleBorder, &LINE_PROP::width>},
    {cfg::kCHeadNameFontHeight, Scan::kFloat, &_PMTBodyProp::CHeadNameFontHeight},
    {cfg::kCHeadScaleFontHeight, Scan::kFloat, &_PMTBodyProp::CHeadScaleFontHeight},
    {cfg::kLayerLeftPos, Scan::kDouble, &_PMTBodyProp::LayerLeftPos},
    {cfg::kLayerRightPos, Scan::kDouble, &_PMTBodyProp::LayerRightPos},
    {cfg::kInteSymbolLPos, Scan::kDouble, &_PMTBodyProp::InteSymbolLPos},
    {cfg::kInteSymbolRPos, Scan::kDouble, &_PMTBodyProp::InteSymbolRPos},
    {cfg::kBeforeGridNumber, Scan::kInt, &_PMTBodyProp::BeforeGridNumber},
    {cfg::kAfterGridNumber, Scan::kInt, &_PMTBodyProp::AfterGridNumber},
};

const KeyRow<_PMTLableProp> kLabelRows[] = {
    {cfg::kRulerHOffset, Scan::kFloat, &_PMTLableProp::RulerHOffset},
    {cfg::kRulerLineOffset, Scan::kFloat, &_PMTLableProp::RulerLineOffset, Rule::kEmptyGives, 10},
    {cfg::kRulerTickLength, Scan::kFloat, &_PMTLableProp::RulerTickLength},
    {cfg::kRulerScaleSpace, Scan::kInt, &_PMTLableProp::RulerScaleSpace, Rule::kZeroGives, 10},
    {cfg::kRulerLineWidth, Scan::kFloat, &detail::At<&_PMTLableProp::RulerLine, &LINE_PROP::width>,
     Rule::kEmptyGives, 1},
    {cfg::kRulerMarkWidth, Scan::kFloat, &_PMTLableProp::RulerMarkWidth, Rule::kEmptyGives, 0.25},
    {cfg::kRulerFmtFontHeight, Scan::kFloat, &detail::At<&_PMTLableProp::RulerFmtFont, &FONT_PROP::height>},
    {cfg::kRulerScaleFontHeight, Scan::kFloat, &_PMTLableProp::RulerScaleFontHeight},
};

// The fault and division lines: colour 0, no style, the width from the key.
const KeyRow<LINE_PROP> kFaultRows[] = {{cfg::kFaultLineWidth, Scan::kFloat, &LINE_PROP::width}};
const KeyRow<LINE_PROP> kDiviRows[] = {{cfg::kBoundaryLineWidth, Scan::kFloat, &LINE_PROP::width}};

template <size_t N>
void ReadLine(const CCfgScript& script, const String& block, LINE_PROP* line, const KeyRow<LINE_PROP> (&rows)[N]) {
  if (!line) return;
  ResetLine(*line);
  detail::ReadKeys(script, block, *line, rows);
}

}  // namespace

_PMTAutoParm* sCfgGetPMTAutoParmPtr(const String& name) { return KindMember(name, &SectionSet::autoParm); }
_PMTMapProp* sCfgGetPMTMapPropPtr(const String& name) { return KindMember(name, &SectionSet::mapProp); }
_PMTBodyProp* sCfgGetPMTBodyPropPtr(const String& name) { return KindMember(name, &SectionSet::bodyProp); }
_PMTLableProp* sCfgGetPMTLabelPropPtr(const String& name) {
  return KindMember(name, &SectionSet::labelProp, false);
}
char* sCfgGetPMTModelPropPtr(const String& name) { return KindMember(name, &SectionSet::modelFlags, false); }
LINE_PROP* sCfgGetPMTFaultPropPtr(const String& name) { return KindMember(name, &SectionSet::faultLine); }
LINE_PROP* sCfgGetPMTDiviPropPtr(const String& name) { return KindMember(name, &SectionSet::diviLine); }

void sCfgReadPMTAutoParm(CCfgScript& script, const String& block, _PMTAutoParm* parm) {
  if (!parm) return;
  parm->flag0 = 0;
  parm->Text.clear();
  detail::ReadKeys(script, block, *parm, kAutoRows);
  // The sign is kept apart: a negative spacing asks for the wells' actual
  // distances.
  parm->FixedSpaceNegative = parm->FixedSpace < 0.0f ? 1 : 0;
  if (parm->FixedSpaceNegative) parm->FixedSpace = -parm->FixedSpace;
}

void sCfgReadPMTMapProp(CCfgScript& script, const String& block, _PMTMapProp* prop, float ratio) {
  if (!prop) return;
  sInitPattProp(&prop->FmtGroundPatt, ratio);
  sInitPattProp(&prop->SublayerPatt, ratio);
  for (LINE_PROP* line : {&prop->FmtTLine, &prop->FmtBLine, &prop->SublTLine, &prop->SublBLine, &prop->InteTLine,
                          &prop->InteBLine})
    sInitLineProp(line);
  detail::ReadKeys(script, block, *prop, kMapRows);
}

void sCfgReadPMTBodyProp(CCfgScript& script, const String& block, _PMTBodyProp* prop) {
  if (!prop) return;
  ResetLine(prop->HoleBorder);
  sInitFontProp(&prop->WNameFont);
  prop->Reserved = 0.0f;
  detail::ReadKeys(script, block, *prop, kBodyRows);
}

void sCfgReadPMTLabelProp(CCfgScript& script, const String& block, _PMTLableProp* prop) {
  if (!prop) return;
  ResetLine(prop->RulerLine);
  sInitFontProp(&prop->RulerFmtFont);
  detail::ReadKeys(script, block, *prop, kLabelRows);
}

void sCfgReadPMTModelProp(CCfgScript& script, const String& block, char* flags) {
  if (!flags) return;
  String value = detail::KeyValue(script, block, cfg::kSmoothModelLine);
  if (value.compare(0, 2, "0x") != 0) value.insert(0, "0x");
  *flags = static_cast<char>(sToDWord(value));
}

void sCfgReadPMTFaultProp(CCfgScript& script, const String& block, LINE_PROP* line) {
  ReadLine(script, block, line, kFaultRows);
}

void sCfgReadPMTDiviProp(CCfgScript& script, const String& block, LINE_PROP* line) {
  ReadLine(script, block, line, kDiviRows);
}

void detail::AppendSectionKeys(KeyList& keys, bool fence) {
  AppendKeys(keys, kAutoRows);
  AppendKeys(keys, kMapRows);
  AppendKeys(keys, kBodyRows);
  AppendKeys(keys, kFaultRows);
  AppendKeys(keys, kDiviRows);
  if (fence) return;
  AppendKeys(keys, kLabelRows);
  keys.push_back(cfg::kSmoothModelLine);
}

void sCfgCopyPMTAutoParm(_PMTAutoParm* dst, const _PMTAutoParm* src) { CopyRecord(dst, src); }
void sCfgCopyPMTMapProp(_PMTMapProp* dst, const _PMTMapProp* src) { CopyRecord(dst, src); }
void sCfgCopyPMTBodyProp(_PMTBodyProp* dst, const _PMTBodyProp* src) { CopyRecord(dst, src); }
void sCfgCopyPMTLabelProp(_PMTLableProp* dst, const _PMTLableProp* src) { CopyRecord(dst, src); }
void sCfgCopyPMTModelProp(char* dst, const char* src) { CopyRecord(dst, src); }
void sCfgCopyPMTFaultProp(LINE_PROP* dst, const LINE_PROP* src) {
  if (dst && src) sCopyLineProp(dst, src);
}
void sCfgCopyPMTDiviProp(LINE_PROP* dst, const LINE_PROP* src) { sCfgCopyPMTFaultProp(dst, src); }

int CFFArchive::PutPMTAutoParm(const _PMTAutoParm* parm) { return parm ? detail::PutRecord(*this, *parm) : 0; }
int CFFArchive::GetPMTAutoParm(_PMTAutoParm* parm) {
  return parm ? detail::GetRecord(*this, *parm, detail::kCurrentVersion) : 0;
}
int CFFArchive::PutPMTMapProp(const _PMTMapProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetPMTMapProp(_PMTMapProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutPMTBodyProp(const _PMTBodyProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetPMTBodyProp(_PMTBodyProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutPMTLabelProp(const _PMTLableProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetPMTLabelProp(_PMTLableProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}

FieldTexts sDescribe(const _PMTAutoParm& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _PMTMapProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _PMTBodyProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _PMTLableProp& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
