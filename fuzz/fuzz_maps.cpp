// The four map kinds on any script, in either language (bit 0 of the first
// byte: Chinese): every reader of the well location map and of the three
// section maps, then their four streams written, read back and written
// again, which must give the same bytes. The record readers on any stream
// are in fuzz_records.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "fuzz_util.h"

namespace {

std::string Streams() {
  mapcfg::CFFArchive a;
  if (!mapcfg::sCfgWriteMapWellLoc(a).empty() || !mapcfg::sCfgWriteMapReserv(a).empty() ||
      !mapcfg::sCfgWriteMapFence(a).empty() || !mapcfg::sCfgWriteMapCorrel(a).empty())
    std::abort();
  return mapcfg_fuzz::Bytes(a);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  if (size == 0) return 0;
  mapcfg_fuzz::StoreReset reset;
  CCfgScript script;
  mapcfg_fuzz::OpenScript(script, data, size, "maps.cfg");
  sCfgReadMapWellLoc(script);
  sCfgReadMapReserv(script);
  sCfgReadMapFence(script);
  sCfgReadMapCorrel(script);
  // The kinds' display names are configuration strings 338 to 341.
  for (int kind = 338; kind <= 341; ++kind) (void)sDescribeMapKind(sGetCfgStr(*sGetCfgLang(), kind));

  const std::string first = Streams();
  mapcfg_fuzz::StoreReset::Clear();
  CFFArchive in;
  in.FromData(first.data(), static_cast<uint32_t>(first.size()));
  const uint32_t kCurrent = 0xFFFFFFFFu;
  if (!sCfgReadMapWellLoc(in, kCurrent).empty() || !sCfgReadMapReserv(in, kCurrent).empty() ||
      !sCfgReadMapFence(in, kCurrent).empty() || !sCfgReadMapCorrel(in, kCurrent).empty())
    std::abort();
  if (Streams() != first) std::abort();
  return 0;
}
