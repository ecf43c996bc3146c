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

#include "fuzz_common.h"

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

  mapcfg_fuzz::StoreStable(
      [](CFFArchive& a) {
        return sCfgWriteMapWellLoc(a).empty() && sCfgWriteMapReserv(a).empty() && sCfgWriteMapFence(a).empty() &&
               sCfgWriteMapCorrel(a).empty();
      },
      [](CFFArchive& a) {
        const uint32_t v = mapcfg_fuzz::kCurrent;
        return sCfgReadMapWellLoc(a, v).empty() && sCfgReadMapReserv(a, v).empty() && sCfgReadMapFence(a, v).empty() &&
               sCfgReadMapCorrel(a, v).empty();
      });
  return 0;
}
