// Plane shapes: the templates of pinch-out and division lines, and the
// division types drawn without a boundary line.
#include "base/text_bytes.h"
#include "catalogs/attribute_values.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "store/key_table.h"
#include "maps/template_fields.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

using detail::KeyRow;
using detail::Rule;
using detail::Scan;

constexpr uint8_t kTipShapeCount = 3;  // triangle, tick, half circle
constexpr float kDefaultTipHeight = 1.0f;

struct PlaneShapeTable {
  _PlaneShapeTempl templs[kPlaneShapeRoleCount];
  RecordArray<_NoDiviType> noDiviTypes;
};

PlaneShapeTable& Shapes() { return detail::StoreTable<PlaneShapeTable>(); }

const KeyRow<_PlaneShapeTempl> kTemplRows[] = {
    {cfg::kDivisionLength, Scan::kFloat, &_PlaneShapeTempl::DivisionLength, Rule::kPositiveOr, 2.0},
    {cfg::kDiviInterval, Scan::kFloat, &_PlaneShapeTempl::DiviInterval, Rule::kPositiveOr, 5.0},
    {cfg::kMinTipNumber, Scan::kInt, &_PlaneShapeTempl::MinTipNumber, Rule::kEmptyGives, 1},
    {cfg::kMaxTipNumber, Scan::kInt, &_PlaneShapeTempl::MaxTipNumber, Rule::kEmptyGives, 100},
};

// The keys of the block "Pinch-out" that name the blocks of its templates,
// by role.
constexpr cfg::Str kPinchOutKeys[] = {cfg::kUpPinchOutTemplate, cfg::kMidPinchOutTemplate,
                                      cfg::kDownPinchOutTemplate};

// The table's stream, in its archive order.
struct PlaneShapeStream {};

template <class V>
void Fields(V& v, PlaneShapeStream&) {
  static const char* const kRoleNames[kPlaneShapeRoleCount] = {"upPinchOut", "midPinchOut", "downPinchOut",
                                                               "division", "horzBoundary"};
  PlaneShapeTable& t = Shapes();
  for (int role = 0; role < kPlaneShapeRoleCount; ++role) v(kRoleNames[role], t.templs[role]);
  v("noDiviTypes", t.noDiviTypes);
}

// The block that `key` of `block` names; the block named like the key when
// its value is empty or the key is missing.
String TemplBlock(const CCfgScript& script, const String& block, cfg::Str key) {
  const String named = detail::KeyValue(script, block, key);
  return named.empty() ? cfg::Name(key) : named;
}

}  // namespace

_PlaneShapeTempl* sCfgGetPlaneShapeTemplPtr(int role) {
  return role >= 0 && role < kPlaneShapeRoleCount ? &Shapes().templs[role] : nullptr;
}
RecordArray<_NoDiviType>* sCfgGetNoDiviTypesPtr() { return &Shapes().noDiviTypes; }

void sCfgReadPlaneShapeTempl(CCfgScript& script, const String& block, _PlaneShapeTempl* templ, float ratio) {
  if (!templ) return;
  _PlaneShapeTempl& r = *templ;
  r.Name = block;
  detail::ReadKeys(script, block, r, kTemplRows);
  if (r.MinTipNumber < 0) r.MinTipNumber = 0;
  if (r.MaxTipNumber < r.MinTipNumber) r.MaxTipNumber = r.MinTipNumber;
  const String tip = detail::KeyValue(script, block, cfg::kTip);
  detail::ValueFields f(tip);  // holds a reference to the value
  const int32_t shape = f.Int(';');
  r.TipShape = shape >= 0 && shape < kTipShapeCount ? static_cast<uint8_t>(shape) : 0;
  const float height = f.Float(';');
  r.TipHeight = height > 0 ? height : kDefaultTipHeight;  // NaN too
  sInitLineProp(&r.Line);
  detail::ReadLineFields(f, r.Line);
  sInitPattProp(&r.TipPatt, ratio);
  detail::ReadPattFields(f, r.TipPatt);
}

void sCfgReadNoDiviTypes(CCfgScript& script, const String& block, RecordArray<_NoDiviType>& types, float ratio) {
  const String key = cfg::Name(cfg::kNoBoundDiviType);
  const int count = script.GetKeyCnt(block.c_str());
  for (int i = 0; i < count; ++i) {
    if (!detail::EqualsNoCase(script.GetKeyName(block.c_str(), i), key.c_str())) continue;
    const String value = script.GetKeyVal(block.c_str(), i);
    detail::ValueFields f(value);
    auto type = std::make_unique<_NoDiviType>();
    type->Name = f.Text(';');
    if (type->Name.empty()) continue;
    const float width = f.Float(';');
    type->Width = width > 0 ? width : 0.0f;
    sInitPattProp(&type->Patt, ratio);
    detail::ReadPattFields(f, type->Patt);
    types.push_back(std::move(type));
  }
}

void sCfgReadPlaneShapes(CCfgScript& script) {
  constexpr float kRatio = 1.0f;
  PlaneShapeTable& t = Shapes();
  const String pinchOut = cfg::Name(cfg::kPinchOut), division = cfg::Name(cfg::kDivision);
  for (int role = kUpPinchOut; role <= kDownPinchOut; ++role)
    sCfgReadPlaneShapeTempl(script, TemplBlock(script, pinchOut, kPinchOutKeys[role]), &t.templs[role], kRatio);
  sCfgReadPlaneShapeTempl(script, division, &t.templs[kDivision], kRatio);
  sCfgReadPlaneShapeTempl(script, TemplBlock(script, division, cfg::kHorizontalBoundaryLine), &t.templs[kHorzBoundary],
                          kRatio);
  sCfgReadNoDiviTypes(script, division, t.noDiviTypes, kRatio);
}

String sCfgWritePlaneShapes(CFFArchive& archive) { return detail::WriteTemplStream<PlaneShapeStream>(archive); }
String sCfgReadPlaneShapes(CFFArchive& archive, uint32_t version) {
  return detail::ReadTemplStream<PlaneShapeStream>(archive, version);
}

void sCfgClearPlaneShapes() { Shapes() = PlaneShapeTable(); }

void sCfgCopyPlaneShapeTempl(_PlaneShapeTempl* dst, const _PlaneShapeTempl* src) {
  if (dst && src) *dst = *src;
}
void sCfgCopyNoDiviType(_NoDiviType* dst, const _NoDiviType* src) {
  if (dst && src) *dst = *src;
}

int CFFArchive::PutPlaneShapeTempl(const _PlaneShapeTempl* templ) {
  return templ ? detail::PutRecord(*this, *templ) : 0;
}
int CFFArchive::GetPlaneShapeTempl(_PlaneShapeTempl* templ, uint32_t version) {
  return templ ? detail::GetRecord(*this, *templ, version) : 0;
}
int CFFArchive::PutNoDiviType(const _NoDiviType* type) { return type ? detail::PutRecord(*this, *type) : 0; }
int CFFArchive::GetNoDiviType(_NoDiviType* type, uint32_t version) {
  return type ? detail::GetRecord(*this, *type, version) : 0;
}

FieldTexts sDescribe(const _PlaneShapeTempl& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _NoDiviType& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribePlaneShapes() { return detail::DescribeRecord(PlaneShapeStream{}); }

}  // namespace mapcfg
