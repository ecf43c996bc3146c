// The well location map's records: the production and test display and the
// map's parameters. The first byte chooses: odd reads the rest as a script
// (bit 1: Chinese) with all four readers, and each record must then go
// through its archive and back to the same bytes; even reads the rest as a
// stream with any version (next four bytes) into the record the byte after
// that chooses.
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
    char tmpl[] = "/tmp/mapcfg-fuzz-wellloc-XXXXXX";
    if (!mkdtemp(tmpl)) std::abort();
    return std::string(tmpl) + "/main.cfg";
  }();
  return path;
}

std::string Bytes(mapcfg::CFFArchive& a) {
  uint32_t n = 0;
  std::unique_ptr<uint8_t[]> bytes = a.ToData(n);
  return std::string(reinterpret_cast<const char*>(bytes.get()), n);
}

// `r` written, read back into a fresh record and written again: the same
// bytes.
template <class R, class Put, class Get>
void RoundTrip(const R& r, Put put, Get get) {
  mapcfg::CFFArchive out, again;
  put(out, r);
  const std::string first = Bytes(out);
  mapcfg::CFFArchive in;
  in.FromData(first.data(), static_cast<uint32_t>(first.size()));
  R copy{};
  if (!get(in, copy)) std::abort();
  put(again, copy);
  if (Bytes(again) != first) std::abort();
  (void)mapcfg::sDescribe(copy);
}

void FromScript(const uint8_t* data, size_t size, char lang) {
  using namespace mapcfg;
  std::FILE* f = std::fopen(ScriptPath().c_str(), "wb");
  if (!f) std::abort();
  std::fwrite(data, 1, size, f);
  std::fclose(f);
  const char saved_lang = *sGetCfgLang();
  *sGetCfgLang() = lang;
  CCfgScript script;
  script.Open(ScriptPath().c_str(), 0);
  _OldProdProp prod{};
  _OldTestProp test{};
  _JWTAutoParm autoparm;
  _JWTMapProp map;
  sCfgReadOldProdProp(script, &prod, static_cast<float>(size));
  sCfgReadOldTestProp(script, &test, 0.5f);
  sCfgReadJWTAutoParm(script, &autoparm);
  sCfgReadJWTMapProp(script, &map);
  *sGetCfgLang() = saved_lang;
  constexpr uint32_t kCurrent = 0xFFFFFFFFu;
  RoundTrip(
      prod, [](CFFArchive& a, const _OldProdProp& r) { a.PutOldProdProp(&r); },
      [](CFFArchive& a, _OldProdProp& r) { return a.GetOldProdProp(&r, kCurrent); });
  RoundTrip(
      test, [](CFFArchive& a, const _OldTestProp& r) { a.PutOldTestProp(&r); },
      [](CFFArchive& a, _OldTestProp& r) { return a.GetOldTestProp(&r, kCurrent); });
  RoundTrip(
      autoparm, [](CFFArchive& a, const _JWTAutoParm& r) { a.PutJWTAutoParm(&r); },
      [](CFFArchive& a, _JWTAutoParm& r) { return a.GetJWTAutoParm(&r); });
  RoundTrip(
      map, [](CFFArchive& a, const _JWTMapProp& r) { a.PutJWTMapProp(&r); },
      [](CFFArchive& a, _JWTMapProp& r) { return a.GetJWTMapProp(&r); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  if (size == 0) return 0;
  if (data[0] & 1) {
    FromScript(data + 1, size - 1, static_cast<char>((data[0] >> 1) & 1));
    return 0;
  }
  if (size < 6) return 0;
  uint32_t version = 0;
  std::memcpy(&version, data + 1, 4);
  CFFArchive a, out;
  a.FromData(data + 6, static_cast<uint32_t>(size - 6));
  switch (data[5] % 4) {
    case 0: { _OldProdProp r{}; a.GetOldProdProp(&r, version); out.PutOldProdProp(&r); (void)sDescribe(r); break; }
    case 1: { _OldTestProp r{}; a.GetOldTestProp(&r, version); out.PutOldTestProp(&r); (void)sDescribe(r); break; }
    case 2: { _JWTAutoParm r; a.GetJWTAutoParm(&r); out.PutJWTAutoParm(&r); (void)sDescribe(r); break; }
    default: { _JWTMapProp r; a.GetJWTMapProp(&r); out.PutJWTMapProp(&r); (void)sDescribe(r); break; }
  }
  return 0;
}
