// Production and test display: how the status and oil-test diagrams beside
// a well are drawn.
#include <cstddef>
#include <cstring>

#include "base/text_bytes.h"
#include "catalogs/display_fields.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "mapcfg/utils.h"
#include "store/config_strings.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

// Line width when the width key is empty.
constexpr float kDefaultLineWidth = 0.5f;

// The keys of a display record, where their values go and the defaults of
// the mode bytes. Empty values give the defaults; the mode bytes are read
// with sToInteger, widths with sToFloat, colours with sToDWord.
template <class R, size_t Modes, size_t Patts>
struct DisplayKeys {
  struct Mode {
    cfg::Str key;
    uint8_t R::*field;
    uint8_t fallback;
  };
  struct Patt {
    cfg::Str name, color;
    PATT_PROP R::*field;
  };
  Mode modes[Modes];
  cfg::Str lineName, lineWidth, lineColor;
  Patt patts[Patts];
  cfg::Str fontName, fontHeight;
  cfg::Str defaultFace;  // the face name when the font-name key is empty
};

const DisplayKeys<_OldProdProp, 6, 3> kProdKeys = {
    {{cfg::kStatusCorreDate, &_OldProdProp::correDate, 1},
     {cfg::kStatusStatMode, &_OldProdProp::statMode, 1},
     {cfg::kStatusDataMode, &_OldProdProp::dataMode, 0},
     {cfg::kStatusPictShape, &_OldProdProp::pictShape, 0},
     {cfg::kStatusFactorMode, &_OldProdProp::factorMode, 0},
     {cfg::kStatusCorreMode, &_OldProdProp::correMode, 2}},
    cfg::kStatusLineName,
    cfg::kStatusLineWidth,
    cfg::kStatusLineColor,
    {{cfg::kStatusOilPattName, cfg::kStatusOilPattColor, &_OldProdProp::oilPatt},
     {cfg::kStatusWaterPattName, cfg::kStatusWaterPattColor, &_OldProdProp::waterPatt},
     {cfg::kStatusInpourPattName, cfg::kStatusInpourPattColor, &_OldProdProp::inpourPatt}},
    cfg::kStatusLblFontName,
    cfg::kStatusLblFontHeight,
    cfg::kArial,
};

const DisplayKeys<_OldTestProp, 3, 2> kTestKeys = {
    {{cfg::kTestPictShape, &_OldTestProp::pictShape, 0},
     {cfg::kTestFactorMode, &_OldTestProp::factorMode, 0},
     {cfg::kTestRatiusMode, &_OldTestProp::ratiusMode, 2}},
    cfg::kTestLineName,
    cfg::kTestLineWidth,
    cfg::kTestLineColor,
    {{cfg::kTestOilPattName, cfg::kTestOilPattColor, &_OldTestProp::oilPatt},
     {cfg::kTestWaterPattName, cfg::kTestWaterPattColor, &_OldTestProp::waterPatt}},
    cfg::kTestLblFontName,
    cfg::kTestLblFontHeight,
    cfg::kArial316,
};

template <class R, size_t Modes, size_t Patts>
void ReadDisplay(const CCfgScript& script, R* r, float ratio, const DisplayKeys<R, Modes, Patts>& keys) {
  if (!r) return;
  const String block = cfg::Name(cfg::kWellLocationMap);
  const auto value = [&](cfg::Str key) { return script.GetKeyVal(block.c_str(), cfg::Name(key).c_str()); };
  for (const auto& mode : keys.modes) {
    const String v = value(mode.key);
    r->*mode.field = v.empty() ? mode.fallback : static_cast<uint8_t>(sToInteger(v));
  }
  detail::CopyName(r->line.style, value(keys.lineName));
  const String width = value(keys.lineWidth);
  r->line.width = width.empty() ? kDefaultLineWidth : sToFloat(width);
  r->line.color = sToDWord(value(keys.lineColor));
  for (const auto& p : keys.patts) {
    PATT_PROP& patt = r->*p.field;
    detail::CopyName(patt.name, value(p.name));
    patt.backColor = sToDWord(value(p.color));
    patt.foreColor = 0;
    patt.ratio = ratio;
  }
  sInitFontProp(&r->lblFont);
  const String face = value(keys.fontName);
  detail::CopyName(r->lblFont.faceName, face.empty() ? cfg::Name(keys.defaultFace) : face);
  // The label font height key sets the font's colour and the height keeps
  // its default: scripts written for the suite rely on this reading.
  r->lblFont.color = sToDWord(value(keys.fontHeight));
}

}  // namespace

_OldProdProp* sCfgGetOldProdPropPtr() { return &detail::StoreTable<_OldProdProp>(); }
_OldTestProp* sCfgGetOldTestPropPtr() { return &detail::StoreTable<_OldTestProp>(); }

void sCfgReadOldProdProp(CCfgScript& script, _OldProdProp* prop, float ratio) {
  ReadDisplay(script, prop, ratio, kProdKeys);
}
void sCfgReadOldTestProp(CCfgScript& script, _OldTestProp* prop, float ratio) {
  ReadDisplay(script, prop, ratio, kTestKeys);
}

void sCfgCopyOldProdProp(_OldProdProp* dst, const _OldProdProp* src) {
  if (dst && src) std::memcpy(dst, src, sizeof *dst);
}
void sCfgCopyOldTestProp(_OldTestProp* dst, const _OldTestProp* src) {
  if (dst && src) std::memcpy(dst, src, sizeof *dst);
}

int CFFArchive::PutOldProdProp(const _OldProdProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetOldProdProp(_OldProdProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutOldTestProp(const _OldTestProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetOldTestProp(_OldTestProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}

FieldTexts sDescribe(const _OldProdProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _OldTestProp& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
