// A configuration pack from any bytes: sCfgReadPack stops with a reason or
// reads every section; whatever it read packs again, and that pack reads
// back to the same bytes.
#include <mapcfg/mapcfg.h>

#include <cstdint>

#include "fuzz_common.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  mapcfg_fuzz::StoreReset reset;
  CFFArchive in;
  in.FromData(data, static_cast<uint32_t>(size));
  char lang = 0;
  (void)sCfgReadPack(in, &lang);
  (void)sDescribeAll();
  mapcfg_fuzz::StoreStable([](CFFArchive& a) { return sCfgWritePack(a).empty(); },
                           [](CFFArchive& a) { return sCfgReadPack(a).empty(); });
  return 0;
}
