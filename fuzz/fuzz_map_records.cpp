// The map records (layers, spacing, frame, legend, scale, curve parameters)
// on any input. An even first byte: the next four bytes are an archive
// version, the sixth chooses the record, the rest is the stream it is read
// from. An odd first byte: the rest is a script whose block "Map" (or
// "图件", Chinese when bit 1 is set) every reader takes. Whatever was read
// is written, read back and written again: the two streams must be the
// same bytes.
#include <mapcfg/mapcfg.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

using namespace mapcfg;

struct MapRecords {
  _LayersProp layers;
  _HVSpaceProp space;
  _MapFrameProp frame;
  _LegendProp legend;
  _ScaleProp scale;
  RecordArray<_CurveParm> curves;
};

std::string Bytes(CFFArchive& a) {
  uint32_t n = 0;
  std::unique_ptr<uint8_t[]> bytes = a.ToData(n);
  return std::string(reinterpret_cast<const char*>(bytes.get()), n);
}

std::string Written(const MapRecords& r) {
  CFFArchive a;
  a.PutLayersProp(&r.layers);
  a.PutHVSpaceProp(&r.space);
  a.PutMapFrameProp(&r.frame);
  a.PutLegendProp(&r.legend);
  a.PutScaleProp(&r.scale);
  a.PutCurveParmArray(r.curves);
  return Bytes(a);
}

// Reads every record from `a` in the order Written puts them; 0 at the
// first failure.
int ReadAll(CFFArchive& a, MapRecords& r, uint32_t version) {
  return a.GetLayersProp(&r.layers, version) && a.GetHVSpaceProp(&r.space) && a.GetMapFrameProp(&r.frame, version) &&
         a.GetLegendProp(&r.legend, version) && a.GetScaleProp(&r.scale, version) &&
         a.GetCurveParmArray(r.curves, version);
}

void RoundTrip(const MapRecords& r) {
  const std::string first = Written(r);
  CFFArchive a;
  a.FromData(reinterpret_cast<const uint8_t*>(first.data()), static_cast<uint32_t>(first.size()));
  MapRecords back;
  if (!ReadAll(a, back, kMapRecordsVersion1) || Written(back) != first) std::abort();
  for (const auto& c : back.curves) (void)sDescribe(*c);
  (void)sDescribe(back.frame);
  (void)sDescribe(back.legend);
}

const std::string& ScriptPath() {
  static const std::string path = [] {
    char tmpl[] = "/tmp/mapcfg-fuzz-maprec-XXXXXX";
    if (!mkdtemp(tmpl)) std::abort();
    return std::string(tmpl) + "/main.cfg";
  }();
  return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 1) return 0;
  MapRecords r;
  if (data[0] & 1) {
    std::FILE* f = std::fopen(ScriptPath().c_str(), "wb");
    if (!f) std::abort();
    std::fwrite(data + 1, 1, size - 1, f);
    std::fclose(f);
    const char saved_lang = *sGetCfgLang();
    *sGetCfgLang() = static_cast<char>((data[0] >> 1) & 1);
    CCfgScript script;
    script.Open(ScriptPath().c_str(), 0);
    const String block = *sGetCfgLang() ? "\xCD\xBC\xBC\xFE" : "Map";
    const float ratio = sCfgReadLayersProp(script, block, &r.layers);
    sCfgReadHVSpaceProp(script, block, &r.space);
    sCfgReadMapFrameProp(script, block, &r.frame);
    sCfgReadLegendProp(script, block, &r.legend, ratio);
    sCfgReadScaleProp(script, block, &r.scale);
    sCfgReadCurveParms(script, block, r.curves, ratio);
    *sGetCfgLang() = saved_lang;
  } else {
    if (size < 6) return 0;
    uint32_t version = 0;
    std::memcpy(&version, data + 1, 4);
    CFFArchive a;
    a.FromData(data + 6, static_cast<uint32_t>(size - 6));
    switch (data[5] % 7) {
      case 0: a.GetLayersProp(&r.layers, version); break;
      case 1: a.GetMapFrameProp(&r.frame, version); break;
      case 2: a.GetLegendProp(&r.legend, version); break;
      case 3: { _LegendMetaProp m; a.GetLegendMetaProp(&m, version); (void)sDescribe(m); break; }
      case 4: a.GetScaleProp(&r.scale, version); break;
      case 5: { _CurveParm c; a.GetCurveParm(&c, version); (void)sDescribe(c); break; }
      default: ReadAll(a, r, version); break;
    }
  }
  RoundTrip(r);
  return 0;
}
