// System parameters: the datum height and the unit systems in which depths
// and coordinates are shown.
#include <cstdint>
#include <utility>
#include <vector>

#include "base/info_text.h"
#include "mapcfg/archive.h"
#include "mapcfg/describe.h"
#include "mapcfg/store.h"
#include "store/script_fields.h"
#include "store/store_state.h"
#include "store/system_param_fields.h"

namespace mapcfg {

namespace {

// Information texts of the built-in systems' captions.
constexpr int kMsgMetricName = 1114;
constexpr int kMsgMetricUnit = 1115;
constexpr int kMsgFeetName = 1116;
constexpr int kMsgFeetUnit = 1117;

constexpr double kFeetPerMetre = 3.28084;

// Source and display system codes; display codes from kFirstUserSystem on
// name the user systems of the record.
constexpr int kMetric = 0;
constexpr int kFeet = 1;
constexpr int kFirstUserSystem = 2;

void SetCaptions(String* first, String* second, const String& a, const String& b) {
  if (first) *first = a;
  if (second) *second = b;
}

double BuiltinSystem(int system, String* first, String* second) {
  if (system == kFeet) {
    SetCaptions(first, second, detail::InfoText(kMsgFeetUnit), detail::InfoText(kMsgFeetName));
    return kFeetPerMetre;
  }
  SetCaptions(first, second, detail::InfoText(kMsgMetricUnit), detail::InfoText(kMsgMetricName));
  return 1.0;
}

const String& TextAt(const StringArray& texts, size_t i) {
  static const String kNone;
  return i < texts.size() ? texts[i] : kNone;
}

// Display system `code` with the user systems given by the three parallel
// arrays. A user system is code - 2 taken as a signed byte; one that is
// negative (codes 130 to 255) or past the factors falls back to metric.
double DisplaySystem(uint8_t code, const StringArray& texts1, const std::vector<double>& factors,
                     const StringArray& texts2, String* first, String* second) {
  if (code < kFirstUserSystem) return BuiltinSystem(code, first, second);
  const int user = static_cast<signed char>(code - kFirstUserSystem);
  if (user < 0 || static_cast<size_t>(user) >= factors.size()) return BuiltinSystem(kMetric, first, second);
  const size_t i = static_cast<size_t>(user);
  SetCaptions(first, second, TextAt(texts2, i), TextAt(texts1, i));
  return factors[i];
}

}  // namespace

_SysCfgParam* sCfgGetSysCfgParamPtr() { return &detail::StoreTable<_SysCfgParam>(); }

void sCfgReadSysCfgParam(CCfgScript& script) {
  const String block = cfg::Name(cfg::kSysCfgParam);
  const auto value = [&](cfg::Str key) { return script.GetKeyVal(block.c_str(), cfg::Name(key).c_str()); };
  // A fresh record: scripts define no user systems, so reading the block
  // drops those an archive brought.
  _SysCfgParam read;
  read.datumHeight = sToDouble(value(cfg::kDatumHeight));
  // The integers are kept in bytes: 258 is system 2, -1 is 255.
  read.depthSystem = static_cast<uint8_t>(sToInteger(value(cfg::kDepthDispSystem)));
  read.coordSystem = static_cast<uint8_t>(sToInteger(value(cfg::kCoordDispSystem)));
  *sCfgGetSysCfgParamPtr() = std::move(read);
}

double cfgGetOrgSystem(char system, String* first, String* second) { return BuiltinSystem(system, first, second); }

double cfgGetDepthDispSystem(String* first, String* second) {
  const _SysCfgParam& p = *sCfgGetSysCfgParamPtr();
  return DisplaySystem(p.depthSystem, p.depthTexts1, p.depthFactors, p.depthTexts2, first, second);
}

double cfgGetCoordDispSystem(String* first, String* second) {
  const _SysCfgParam& p = *sCfgGetSysCfgParamPtr();
  return DisplaySystem(p.coordSystem, p.coordTexts1, p.coordFactors, p.coordTexts2, first, second);
}

double cfgDepthOrg2DispSystem(char org, String* first, String* second) {
  return cfgGetDepthDispSystem(first, second) / cfgGetOrgSystem(org, nullptr, nullptr);
}

double cfgCoordOrg2DispSystem(char org, String* first, String* second) {
  return cfgGetCoordDispSystem(first, second) / cfgGetOrgSystem(org, nullptr, nullptr);
}

int CFFArchive::PutSysCfgParam(const _SysCfgParam* param) { return param ? detail::PutRecord(*this, *param) : 0; }
int CFFArchive::GetSysCfgParam(_SysCfgParam* param, uint32_t version) {
  return param ? detail::GetRecord(*this, *param, version) : 0;
}

FieldTexts sDescribe(const _SysCfgParam& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
