// Every record reader of the catalogues and the store, and the streams of
// the whole store and of each map kind, on any bytes, with any archive
// version: the first four bytes are the version, the fifth chooses
// the reader, the rest is the stream. A count in the stream never allocates
// ahead of the bytes that follow it (the sanitizers' allocation limit would
// stop the run).
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  if (size < 5) return 0;
  uint32_t version = 0;
  std::memcpy(&version, data, 4);
  const uint8_t op = data[4];
  CFFArchive a;
  a.FromData(data + 5, static_cast<uint32_t>(size - 5));
  switch (op % 16) {
    case 0: { LINE_PROP r{}; a.GetLineProp(r, version); (void)sDescribe(r); break; }
    case 1: { PATT_PROP r{}; a.GetPattProp(r, version); (void)sDescribe(r); break; }
    case 2: { FONT_PROP r{}; a.GetFontProp(r); (void)sDescribe(r); break; }
    case 3: { _StatusProp r; a.GetStatusProp(&r); break; }
    case 4: { _IntepretProp r; a.GetInterpretProp(&r); break; }
    case 5: { _LithProp r; a.GetLithProp(&r); break; }
    case 6: { RecordArray<_StatusProp> x, y, z; a.GetStatusPropArray(x, op & 16 ? &y : nullptr, op & 32 ? &z : nullptr); break; }
    case 7: { RecordArray<_IntepretProp> x, y; a.GetInterpretPropArray(x, op & 16 ? &y : nullptr); break; }
    case 8: { RecordArray<_LithProp> x, y, z; a.GetLithPropArray(x, &y, op & 32 ? &z : nullptr); break; }
    case 9: { _SysCfgParam r; a.GetSysCfgParam(&r, version); (void)sDescribe(r); break; }
    case 10: { _HVSpaceProp r; a.GetHVSpaceProp(&r); break; }
    case 12: (void)sCfgReadMapWellLoc(a, version); sCfgClearPlate(); break;
    case 13: (void)sCfgReadMapReserv(a, version); sCfgClearPlate(); break;
    case 14: (void)sCfgReadMapFence(a, version); sCfgClearPlate(); break;
    case 15: (void)sCfgReadMapCorrel(a, version); sCfgClearPlate(); break;
    default: {
      const char saved_lang = *sGetCfgLang();
      (void)sCfgReadMain(a, version);
      (void)sDescribeMainStore();
      sCfgClearPlate();
      sCfgGetLibNamesPtr()->clear();
      sCfgGetLibDllsPtr()->clear();
      sCfgGetMenuNamesPtr()->clear();
      sCfgGetMenuFunsPtr()->clear();
      *sGetCfgLang() = saved_lang;
      break;
    }
  }
  return 0;
}
