// Single-well templates on any script, in either language (bit 0 of the
// first byte: Chinese): the template list and the track trees it names, the
// checker's walk of the same trees, a tree read from the script's first
// block, and the single-well stream written, read back and written again,
// which must give the same bytes. Every tree must keep within the reader's
// limits. Registries of more than kRoundTrip tracks skip the stream, which
// would take seconds and hundreds of megabytes under the sanitizers for
// the largest trees a few kilobytes of script make. The record readers on
// any stream are in fuzz_records.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include "fuzz_common.h"

namespace {

constexpr size_t kRoundTrip = 4096;

// Tracks of a tree, aborting on one deeper than the limit.
size_t Tracks(const mapcfg::_DJTTrack& t, int level) {
  if (level > mapcfg::kMaxTrackDepth) std::abort();
  size_t n = 1;
  for (const auto& child : t.Children) n += Tracks(*child, level + 1);
  return n;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  if (size == 0) return 0;
  mapcfg_fuzz::StoreReset reset;
  CCfgScript script;
  mapcfg_fuzz::OpenScript(script, data, size, "single.cfg");
  sCfgReadMapSingle(script);
  (void)sCfgCheckMapSingle(script);
  const _CfgMapSingle& registry = *sCfgGetMapSinglePtr();
  if (registry.Names.size() != registry.Templs.size()) std::abort();
  size_t total = 0;
  for (const auto& templ : registry.Templs)
    for (const auto& track : templ->Tracks) total += Tracks(*track, 1);
  if (total > static_cast<size_t>(kMaxTrackCount)) std::abort();
  if (script.GetCfgCnt() > 0) {
    const String block = script.GetCfgName(0);
    _DJTTrack track;
    sCfgReadDJTTrack(script, block, script.GetKeyVal(block.c_str(), 0), &track, 1.5f);
    if (Tracks(track, 1) > static_cast<size_t>(kMaxTrackCount)) std::abort();
  }

  if (total > kRoundTrip) return 0;
  mapcfg_fuzz::StoreStable([](CFFArchive& a) { return sCfgWriteMapSingle(a).empty(); },
                           [](CFFArchive& a) { return sCfgReadMapSingle(a, mapcfg_fuzz::kCurrent).empty(); });
  return 0;
}
