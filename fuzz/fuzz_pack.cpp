// A configuration pack from any bytes: sCfgReadPack stops with a reason or
// reads every section; whatever it read packs again, and that pack reads
// back to the same bytes.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "fuzz_util.h"

namespace {

std::string Packed() {
  mapcfg::CFFArchive a;
  if (!mapcfg::sCfgWritePack(a).empty()) std::abort();
  return mapcfg_fuzz::Bytes(a);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  mapcfg_fuzz::StoreReset reset;
  CFFArchive in;
  in.FromData(data, static_cast<uint32_t>(size));
  char lang = 0;
  (void)sCfgReadPack(in, &lang);
  (void)sDescribeAll();

  const std::string first = Packed();
  mapcfg_fuzz::StoreReset::Clear();
  CFFArchive again;
  again.FromData(first.data(), static_cast<uint32_t>(first.size()));
  if (!sCfgReadPack(again).empty()) std::abort();
  if (Packed() != first) std::abort();
  return 0;
}
