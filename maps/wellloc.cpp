// Well location map parameters: how depths and symbols are based, and the
// sizes of well symbols and names.
#include "mapcfg/archive.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "mapcfg/utils.h"
#include "maps/wellloc_fields.h"
#include "store/config_strings.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

// Values below this (in single precision) count as not given.
constexpr float kMinSize = 0.0005f;

constexpr int kDefaultDepthBase = 3;  // the target layer
constexpr float kDefaultBaseDepth = 1200.0f;

// The keys of _JWTAutoParm and how each value is stored (the scans "%d",
// "%f" and "%x" are sToInteger, sToFloat and sToDWord).
struct AutoKey {
  cfg::Str key;
  void (*store)(_JWTAutoParm& r, const String& value);
};
const AutoKey kAutoKeys[] = {
    {cfg::kDepthBaseMode,
     [](_JWTAutoParm& r, const String& v) {
       const int mode = sToInteger(v);
       r.DepthBaseMode = static_cast<char>(mode < 1 || mode > 4 ? kDefaultDepthBase : mode);
     }},
    {cfg::kStraBaseName, [](_JWTAutoParm& r, const String& v) { r.StraBaseName = v; }},
    {cfg::kSglBaseDepth,
     [](_JWTAutoParm& r, const String& v) {
       const float depth = sToFloat(v);
       r.SglBaseDepth = depth < 0.0f ? kDefaultBaseDepth : depth;
     }},
    {cfg::kSglDisplayMode,
     [](_JWTAutoParm& r, const String& v) { r.SglDisplayMode = static_cast<uint8_t>(sToDWord(v)); }},
};

// The keys of _JWTMapProp: each value is scanned with "%f" and one below
// kMinSize takes the default.
struct MapKey {
  cfg::Str key;
  float _JWTMapProp::*field;
  float fallback;
};
const MapKey kMapKeys[] = {
    {cfg::kWSymbolRadius, &_JWTMapProp::WSymbolRadius, 25.0f},
    {cfg::kWNameFontHeight, &_JWTMapProp::WNameFontHeight, 35.0f},
    {cfg::kHangingFootWallsDistance, &_JWTMapProp::HangingFootWallsDistance, 50.0f},
    {cfg::kContourPosition, &_JWTMapProp::ContourPosition, 0.5f},
    {cfg::kAutoScanRdius, &_JWTMapProp::AutoScanRdius, 50.0f},
};

// The value of `key` in the well location map's block.
String Value(const CCfgScript& script, cfg::Str key) {
  return script.GetKeyVal(cfg::Name(cfg::kWellLocationMap).c_str(), cfg::Name(key).c_str());
}

}  // namespace

_JWTAutoParm* sCfgGetJWTAutoParmPtr() { return &detail::StoreTable<_JWTAutoParm>(); }
_JWTMapProp* sCfgGetJWTMapPropPtr() { return &detail::StoreTable<_JWTMapProp>(); }

void sCfgReadJWTAutoParm(CCfgScript& script, _JWTAutoParm* parm) {
  if (!parm) return;
  for (const AutoKey& k : kAutoKeys) k.store(*parm, Value(script, k.key));
  parm->Text.clear();
  parm->Switch1 = 1;
  parm->Switch2 = 1;
}

void sCfgReadJWTMapProp(CCfgScript& script, _JWTMapProp* prop) {
  if (!prop) return;
  for (const MapKey& k : kMapKeys) {
    const float v = sToFloat(Value(script, k.key));
    prop->*k.field = v < kMinSize ? k.fallback : v;
  }
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
