// Statistics templates from any bytes with any archive version: the template
// file (sCfgReadMapStat, sCfgReadCTPFile), its record readers, the registry
// records and their arrays, and sCfgReadMapStatis. The first four bytes are
// the version, the fifth chooses the reader, the rest is the stream.
//
// Whatever a reader keeps must write, describe and clone; and a template or
// item written once must read back and write again to the same bytes (the
// writers always take the current layout).
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fuzz_common.h"

namespace {

using namespace mapcfg;

using mapcfg_fuzz::Stable;

void CheckTempl(const _CfgStatTempl& t) {
  Stable(t, [](CFFArchive& a, const _CfgStatTempl& r) { sCfgWriteMapStat_Templ(a, &r); },
         [](CFFArchive& a, _CfgStatTempl& r) { return sCfgReadMapStat_Templ(a, &r, 0xFFFFFFFFu).empty(); });
  (void)sDescribe(t);
  (void)sCfgTemplClone(&t);
}

void CheckMeta(const _CfgStatMeta& m) {
  Stable(m, [](CFFArchive& a, const _CfgStatMeta& r) { sCfgWriteMapStat_Meta(a, &r); },
         [](CFFArchive& a, _CfgStatMeta& r) { return sCfgReadMapStat_Meta(a, &r, 0xFFFFFFFFu).empty(); });
  (void)sDescribe(m);
  (void)sCfgMetaClone(&m);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  mapcfg_fuzz::StreamInput input;
  if (!input.Parse(data, size)) return 0;
  auto& [version, op, a] = input;
  mapcfg_fuzz::StoreReset reset;
  switch (op % 12) {
    case 0:
      (void)sCfgReadMapStat("fuzz.ctp", a, version, op & 16);
      for (const auto& t : *sCfgGetMapStatPtr()) CheckTempl(*t);
      break;
    case 1: {
      const std::string path = mapcfg_fuzz::WriteScratch("fuzz.ctp", data + 5, size - 5);
      (void)sCfgReadCTPFile(path.c_str());
      for (const auto& t : *sCfgGetMapStatPtr()) CheckTempl(*t);
      break;
    }
    case 2: { _CfgStatTempl t; (void)sCfgReadMapStat_Templ(a, &t, version); CheckTempl(t); break; }
    case 3: { _CfgStatMeta m; (void)sCfgReadMapStat_Meta(a, &m, version); CheckMeta(m); break; }
    case 4: {
      _CfgStatWhere w;
      (void)sCfgReadMapStat_Where(a, &w, version);
      Stable(w, [](CFFArchive& out, const _CfgStatWhere& r) { sCfgWriteMapStat_Where(out, &r); },
             [](CFFArchive& in, _CfgStatWhere& r) { return sCfgReadMapStat_Where(in, &r, 0xFFFFFFFFu).empty(); });
      (void)sDescribe(w);
      break;
    }
    case 5: { _StatTempl t; a.GetStatTempl(&t); CheckTempl(t); CFFArchive out; out.PutStatTempl(&t); break; }
    case 6: { _StatMeta m; a.GetStatMetal(&m); CheckMeta(m); CFFArchive out; out.PutStatMetal(&m); break; }
    case 7: { _StatMember m; a.GetStatMember(&m); (void)sDescribe(m); break; }
    case 8: { RecordArray<_StatTempl> r; a.GetStatTemplArray(r); CFFArchive out; out.PutStatTemplArray(r); break; }
    case 9: { RecordArray<_StatMeta> r; a.GetStatMetalArray(r); CFFArchive out; out.PutStatMetalArray(r); break; }
    case 10: { RecordArray<_StatMember> r; a.GetStatMemberArray(r); CFFArchive out; out.PutStatMemberArray(r); break; }
    default: {
      _CfgMapStatis statis;
      (void)sCfgReadMapStatis(a, statis);
      for (const auto& t : statis.Templs) CheckTempl(*t);
      sCfgClearMapStatis(statis);
      break;
    }
  }
  return 0;
}
