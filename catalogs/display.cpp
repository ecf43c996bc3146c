// Production and test display: how the status and oil-test diagrams beside
// a well are drawn.
#include <cstddef>
#include <cstring>

#include "catalogs/display_fields.h"
#include "catalogs/reader_keys.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "mapcfg/utils.h"
#include "store/config_strings.h"
#include "store/key_table.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

using detail::At;
using detail::FixedAt;
using detail::KeyRow;
using detail::Rule;
using detail::Scan;

// Line width when the width key is empty.
constexpr double kDefaultLineWidth = 0.5;

// The label font's face when its key is empty.
template <class R, cfg::Str Face>
void LabelFace(R& r, const String& value) {
  detail::CopyFixed(detail::FixedText{r.lblFont.faceName, sizeof r.lblFont.faceName},
                    value.empty() ? cfg::Name(Face) : value);
}

// The mode bytes are read with sToInteger (empty gives their default),
// widths with sToFloat, colours with sToDWord; an empty name empties the
// field.
const KeyRow<_OldProdProp> kProdRows[] = {
    {cfg::kStatusCorreDate, Scan::kInt, &_OldProdProp::correDate, Rule::kEmptyGives, 1},
    {cfg::kStatusStatMode, Scan::kInt, &_OldProdProp::statMode, Rule::kEmptyGives, 1},
    {cfg::kStatusDataMode, Scan::kInt, &_OldProdProp::dataMode, Rule::kEmptyGives, 0},
    {cfg::kStatusPictShape, Scan::kInt, &_OldProdProp::pictShape, Rule::kEmptyGives, 0},
    {cfg::kStatusFactorMode, Scan::kInt, &_OldProdProp::factorMode, Rule::kEmptyGives, 0},
    {cfg::kStatusCorreMode, Scan::kInt, &_OldProdProp::correMode, Rule::kEmptyGives, 2},
    {cfg::kStatusLineName, Scan::kText, &FixedAt<&_OldProdProp::line, &LINE_PROP::style>},
    {cfg::kStatusLineWidth, Scan::kFloat, &At<&_OldProdProp::line, &LINE_PROP::width>, Rule::kEmptyGives,
     kDefaultLineWidth},
    {cfg::kStatusLineColor, Scan::kHex, &At<&_OldProdProp::line, &LINE_PROP::color>},
    {cfg::kStatusOilPattName, Scan::kText, &FixedAt<&_OldProdProp::oilPatt, &PATT_PROP::name>},
    {cfg::kStatusOilPattColor, Scan::kHex, &At<&_OldProdProp::oilPatt, &PATT_PROP::backColor>},
    {cfg::kStatusWaterPattName, Scan::kText, &FixedAt<&_OldProdProp::waterPatt, &PATT_PROP::name>},
    {cfg::kStatusWaterPattColor, Scan::kHex, &At<&_OldProdProp::waterPatt, &PATT_PROP::backColor>},
    {cfg::kStatusInpourPattName, Scan::kText, &FixedAt<&_OldProdProp::inpourPatt, &PATT_PROP::name>},
    {cfg::kStatusInpourPattColor, Scan::kHex, &At<&_OldProdProp::inpourPatt, &PATT_PROP::backColor>},
    {cfg::kStatusLblFontName, Scan::kText, &LabelFace<_OldProdProp, cfg::kArial>},
    // The label font height key sets the font's colour and the height keeps
    // its default: scripts written for the suite rely on this reading.
    {cfg::kStatusLblFontHeight, Scan::kHex, &At<&_OldProdProp::lblFont, &FONT_PROP::color>},
};
constexpr PATT_PROP _OldProdProp::*kProdPatts[] = {&_OldProdProp::oilPatt, &_OldProdProp::waterPatt,
                                                   &_OldProdProp::inpourPatt};

const KeyRow<_OldTestProp> kTestRows[] = {
    {cfg::kTestPictShape, Scan::kInt, &_OldTestProp::pictShape, Rule::kEmptyGives, 0},
    {cfg::kTestFactorMode, Scan::kInt, &_OldTestProp::factorMode, Rule::kEmptyGives, 0},
    {cfg::kTestRatiusMode, Scan::kInt, &_OldTestProp::ratiusMode, Rule::kEmptyGives, 2},
    {cfg::kTestLineName, Scan::kText, &FixedAt<&_OldTestProp::line, &LINE_PROP::style>},
    {cfg::kTestLineWidth, Scan::kFloat, &At<&_OldTestProp::line, &LINE_PROP::width>, Rule::kEmptyGives,
     kDefaultLineWidth},
    {cfg::kTestLineColor, Scan::kHex, &At<&_OldTestProp::line, &LINE_PROP::color>},
    {cfg::kTestOilPattName, Scan::kText, &FixedAt<&_OldTestProp::oilPatt, &PATT_PROP::name>},
    {cfg::kTestOilPattColor, Scan::kHex, &At<&_OldTestProp::oilPatt, &PATT_PROP::backColor>},
    {cfg::kTestWaterPattName, Scan::kText, &FixedAt<&_OldTestProp::waterPatt, &PATT_PROP::name>},
    {cfg::kTestWaterPattColor, Scan::kHex, &At<&_OldTestProp::waterPatt, &PATT_PROP::backColor>},
    {cfg::kTestLblFontName, Scan::kText, &LabelFace<_OldTestProp, cfg::kArial316>},
    {cfg::kTestLblFontHeight, Scan::kHex, &At<&_OldTestProp::lblFont, &FONT_PROP::color>},
};
constexpr PATT_PROP _OldTestProp::*kTestPatts[] = {&_OldTestProp::oilPatt, &_OldTestProp::waterPatt};

template <class R, size_t N, size_t Patts>
void ReadDisplay(const CCfgScript& script, R* r, float ratio, const KeyRow<R> (&rows)[N],
                 PATT_PROP R::*const (&patts)[Patts]) {
  if (!r) return;
  sInitFontProp(&r->lblFont);
  detail::ReadKeys(script, cfg::Name(cfg::kWellLocationMap), *r, rows);
  for (PATT_PROP R::*p : patts) {
    (r->*p).foreColor = 0;
    (r->*p).ratio = ratio;
  }
}

}  // namespace

_OldProdProp* sCfgGetOldProdPropPtr() { return &detail::StoreTable<_OldProdProp>(); }
_OldTestProp* sCfgGetOldTestPropPtr() { return &detail::StoreTable<_OldTestProp>(); }

void sCfgReadOldProdProp(CCfgScript& script, _OldProdProp* prop, float ratio) {
  ReadDisplay(script, prop, ratio, kProdRows, kProdPatts);
}
void sCfgReadOldTestProp(CCfgScript& script, _OldTestProp* prop, float ratio) {
  ReadDisplay(script, prop, ratio, kTestRows, kTestPatts);
}

void detail::AppendDisplayKeys(KeyList& keys) {
  AppendKeys(keys, kProdRows);
  AppendKeys(keys, kTestRows);
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
