// The section map records on any input. The first byte chooses the language
// (bit 0: Chinese), the map kind (bits 1-2) and the source (bit 3): a script
// read by every reader of the kind's block, or a stream (after a four-byte
// archive version) read by the four record readers. The records then go
// through the archive: written, read back and written again, the two
// streams must be the same bytes.
#include <mapcfg/mapcfg.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

const std::string& ScriptPath() {
  static const std::string path = [] {
    char tmpl[] = "/tmp/mapcfg-fuzz-sections-XXXXXX";
    if (!mkdtemp(tmpl)) std::abort();
    return std::string(tmpl) + "/section.cfg";
  }();
  return path;
}

struct Records {
  mapcfg::_PMTAutoParm autoParm{};
  mapcfg::_PMTMapProp mapProp{};
  mapcfg::_PMTBodyProp bodyProp{};
  mapcfg::_PMTLableProp labelProp{};
};

std::string Stream(const Records& r) {
  mapcfg::CFFArchive a;
  a.PutPMTAutoParm(&r.autoParm);
  a.PutPMTMapProp(&r.mapProp);
  a.PutPMTBodyProp(&r.bodyProp);
  a.PutPMTLabelProp(&r.labelProp);
  uint32_t n = 0;
  std::unique_ptr<uint8_t[]> bytes = a.ToData(n);
  return std::string(reinterpret_cast<const char*>(bytes.get()), n);
}

void Get(mapcfg::CFFArchive& a, Records& r, uint32_t version) {
  a.GetPMTAutoParm(&r.autoParm) && a.GetPMTMapProp(&r.mapProp, version) &&
      a.GetPMTBodyProp(&r.bodyProp, version) && a.GetPMTLabelProp(&r.labelProp, version);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  if (size < 5) return 0;
  const char saved_lang = *sGetCfgLang();
  *sGetCfgLang() = static_cast<char>(data[0] & 1);
  const int kinds[] = {339, 340, 341, 0};  // the last is no kind at all
  const String kind = sGetCfgStr(*sGetCfgLang(), kinds[(data[0] >> 1) & 3]);
  Records r;
  if (data[0] & 8) {
    uint32_t version = 0;
    std::memcpy(&version, data + 1, 4);
    CFFArchive a;
    a.FromData(data + 5, static_cast<uint32_t>(size - 5));
    Get(a, r, version);
  } else {
    std::FILE* f = std::fopen(ScriptPath().c_str(), "wb");
    if (!f) std::abort();
    std::fwrite(data + 1, 1, size - 1, f);
    std::fclose(f);
    CCfgScript script;
    script.Open(ScriptPath().c_str(), 0);
    sCfgReadPMTAutoParm(script, kind, &r.autoParm);
    sCfgReadPMTMapProp(script, kind, &r.mapProp, 1.5f);
    sCfgReadPMTBodyProp(script, kind, &r.bodyProp);
    sCfgReadPMTLabelProp(script, kind, &r.labelProp);
    // Into the store's own records; null for a kind that has none.
    sCfgReadPMTModelProp(script, kind, sCfgGetPMTModelPropPtr(kind));
    sCfgReadPMTFaultProp(script, kind, sCfgGetPMTFaultPropPtr(kind));
    sCfgReadPMTDiviProp(script, kind, sCfgGetPMTDiviPropPtr(kind));
  }
  (void)sDescribe(r.autoParm), (void)sDescribe(r.mapProp), (void)sDescribe(r.bodyProp), (void)sDescribe(r.labelProp);

  const std::string first = Stream(r);
  CFFArchive in;
  in.FromData(reinterpret_cast<const uint8_t*>(first.data()), static_cast<uint32_t>(first.size()));
  Records back;
  Get(in, back, 0xFFFFFFFFu);
  if (!in.GetLastError().empty() || Stream(back) != first) std::abort();

  sCfgClearPlate();
  *sGetCfgLang() = saved_lang;
  return 0;
}
