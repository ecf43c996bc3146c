// Every catalogue and system-parameter reader on any script, in either
// language, then the lithology decomposer on what was read and on pieces of
// the input. The tables then go through the whole-store stream: written,
// cleared, read back and written again, the two streams must be the same
// bytes. The first byte of the input chooses the language (odd: Chinese).
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "fuzz_common.h"

namespace {

void Decompose(std::string description) {
  using namespace mapcfg;
  String oil = "?", colour = "?", lith, parts[4], symbols[4], pattern, oil_symbol;
  double ratio = 0;
  uint32_t rgb = 0;
  if (sCfgGetLithPropByCode(description, oil, colour, lith, ratio, parts, symbols, pattern, oil_symbol, rgb) != 4)
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  if (size == 0) return 0;
  mapcfg_fuzz::StoreReset reset;
  CCfgScript script;
  mapcfg_fuzz::OpenScript(script, data, size, "main.cfg");
  for (auto read : {sCfgReadSysCfgParam, sCfgReadLibDlls, sCfgReadMenuFuns, sCfgReadStatusProps,
                    sCfgReadInterpretProps, sCfgReadLithProps, sCfgReadYQXSs, sCfgReadHYWs, sCfgReadYXQZs,
                    sCfgReadGZFHs, sCfgReadColors, sCfgReadPrevColor, sCfgReadTextFmts, sCfgReadDataSrcs,
                    sCfgReadLabelCrvs, sCfgIsoLineProp})
    read(script);

  for (const String& code : *sCfgGetLithCodesPtr()) Decompose(code);
  const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);
  for (size_t at = 0; at < text.size() && at < 64; at += 7) Decompose(text.substr(at, 24));
  for (const String& code : *sCfgGetInterpretCodesPtr()) {
    String type, symbol, pattern;
    char density = 0;
    uint32_t bg = 0, colour = 0;
    sCfgGetResultPropByCode(code, type, density, symbol, bg, pattern, colour);
  }
  (void)sCfgFindStatusProp(text.substr(0, 8), 0);
  (void)cfgDepthOrg2DispSystem(static_cast<char>(size), nullptr, nullptr);

  // The store through its stream and back, byte for byte.
  mapcfg_fuzz::StoreStable([](CFFArchive& a) { return sCfgWriteMain(a).empty(); },
                           [](CFFArchive& a) { return sCfgReadMain(a, mapcfg_fuzz::kCurrent).empty(); });
  return 0;
}
