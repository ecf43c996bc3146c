// Well location map parameters: how depths and symbols are based, and the
// sizes of well symbols and names.
#include "mapcfg/archive.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "mapcfg/utils.h"
#include "maps/reader_keys.h"
#include "maps/wellloc_fields.h"
#include "store/config_strings.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

constexpr int kDefaultDepthBase = 3;  // the target layer
constexpr float kDefaultBaseDepth = 1200.0f;

using detail::KeyRow;
using detail::Rule;
using detail::Scan;

// A depth base mode outside 1..4 gives the target layer.
void DepthBaseMode(_JWTAutoParm& r, const String& value) {
  const int mode = sToInteger(value);
  r.DepthBaseMode = static_cast<char>(mode < 1 || mode > 4 ? kDefaultDepthBase : mode);
}

const KeyRow<_JWTAutoParm> kAutoRows[] = {
    {cfg::kDepthBaseMode, Scan::kInt, &DepthBaseMode},
    {cfg::kStraBaseName, Scan::kText, &_JWTAutoParm::StraBaseName},
    {cfg::kSglBaseDepth, Scan::kFloat, &_JWTAutoParm::SglBaseDepth, Rule::kNegativeGives, kDefaultBaseDepth},
    {cfg::kSglDisplayMode, Scan::kHex, &_JWTAutoParm::SglDisplayMode},
};

// Sizes: a value below 0.0005 (in single precision) takes the default.
const KeyRow<_JWTMapProp> kMapRows[] = {
    {cfg::kWSymbolRadius, Scan::kFloat, &_JWTMapProp::WSymbolRadius, Rule::kTinyGives, 25},
    {cfg::kWNameFontHeight, Scan::kFloat, &_JWTMapProp::WNameFontHeight, Rule::kTinyGives, 35},
    {cfg::kHangingFootWallsDistance, Scan::kFloat, &_JWTMapProp::HangingFootWallsDistance, Rule::kTinyGives, 50},
    {cfg::kContourPosition, Scan::kFloat, &_JWTMapProp::ContourPosition, Rule::kTinyGives, 0.5},
    {cfg::kAutoScanRdius, Scan::kFloat, &_JWTMapProp::AutoScanRdius, Rule::kTinyGives, 50},
};

}  // namespace

_JWTAutoParm* sCfgGetJWTAutoParmPtr() { return &detail::StoreTable<_JWTAutoParm>(); }
_JWTMapProp* sCfgGetJWTMapPropPtr() { return &detail::StoreTable<_JWTMapProp>(); }

void sCfgReadJWTAutoParm(CCfgScript& script, _JWTAutoParm* parm) {
  if (!parm) return;
  detail::ReadKeys(script, cfg::Name(cfg::kWellLocationMap), *parm, kAutoRows);
  parm->Text.clear();
  parm->Switch1 = 1;
  parm->Switch2 = 1;
}

void sCfgReadJWTMapProp(CCfgScript& script, _JWTMapProp* prop) {
  if (!prop) return;
  detail::ReadKeys(script, cfg::Name(cfg::kWellLocationMap), *prop, kMapRows);
}

void detail::AppendWellLocKeys(KeyList& keys) {
  AppendKeys(keys, kAutoRows);
  AppendKeys(keys, kMapRows);
}

void sCfgCopyJWTAutoParm(_JWTAutoParm* dst, const _JWTAutoParm* src) {
  if (dst && src) *dst = *src;
}
void sCfgCopyJWTMapProp(_JWTMapProp* dst, const _JWTMapProp* src) {
  if (dst && src) *dst = *src;
}

int CFFArchive::PutJWTAutoParm(const _JWTAutoParm* parm) { return parm ? detail::PutRecord(*this, *parm) : 0; }
int CFFArchive::GetJWTAutoParm(_JWTAutoParm* parm) {
  return parm ? detail::GetRecord(*this, *parm, detail::kCurrentVersion) : 0;
}
int CFFArchive::PutJWTMapProp(const _JWTMapProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetJWTMapProp(_JWTMapProp* prop) {
  return prop ? detail::GetRecord(*this, *prop, detail::kCurrentVersion) : 0;
}

FieldTexts sDescribe(const _JWTAutoParm& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _JWTMapProp& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
