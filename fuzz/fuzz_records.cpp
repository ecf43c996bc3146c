// Every record reader, and the streams of the whole store and of each map
// kind (the single-well map's included), on any bytes with any archive
// version: the first four bytes are the version, the fifth chooses the
// reader, the rest is the stream. A count in the stream never allocates
// ahead of the bytes that follow it (the sanitizers' allocation limit would
// stop the run). A record read is written again and described, so that
// whatever a reader leaves is a record the writer and the describer take; a
// track tree read is written, read and written again to the same bytes.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fuzz_common.h"

namespace {

template <class R>
void Use(const R& r, int (mapcfg::CFFArchive::*put)(const R*)) {
  mapcfg::CFFArchive out;
  (out.*put)(&r);
  (void)mapcfg::sDescribe(r);
}

using mapcfg_fuzz::kCurrent;
const mapcfg::_DJTTrack* Arg(const mapcfg::_DJTTrack& r) { return &r; }
const mapcfg::_DJTTempl* Arg(const mapcfg::_DJTTempl& r) { return &r; }
template <class R>
const mapcfg::RecordArray<R>& Arg(const mapcfg::RecordArray<R>& r) {
  return r;
}
int Get(mapcfg::CFFArchive& a, mapcfg::_DJTTrack& r) { return a.GetDJTTrack(&r, kCurrent); }
int Get(mapcfg::CFFArchive& a, mapcfg::_DJTTempl& r) { return a.GetDJTTempl(&r, kCurrent); }
int Get(mapcfg::CFFArchive& a, mapcfg::RecordArray<mapcfg::_DJTTrack>& r) { return a.GetDJTTrackArray(r, kCurrent); }
int Get(mapcfg::CFFArchive& a, mapcfg::RecordArray<mapcfg::_DJTTempl>& r) { return a.GetDJTTemplArray(r, kCurrent); }

// A tree the archive gave is one the writers take: written again, it must
// read back to the same bytes.
template <class R, class Put>
void Tree(R& r, Put put) {
  mapcfg_fuzz::Stable(r, [put](mapcfg::CFFArchive& a, const R& v) { if (!(a.*put)(Arg(v))) std::abort(); },
                      [](mapcfg::CFFArchive& a, R& v) { return Get(a, v) != 0; });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace mapcfg;
  mapcfg_fuzz::StreamInput input;
  if (!input.Parse(data, size)) return 0;
  auto& [version, op, a] = input;
  mapcfg_fuzz::StoreReset reset;
  switch (op % 37) {
    case 0: { LINE_PROP r{}; a.GetLineProp(r, version); (void)sDescribe(r); break; }
    case 1: { PATT_PROP r{}; a.GetPattProp(r, version); (void)sDescribe(r); break; }
    case 2: { FONT_PROP r{}; a.GetFontProp(r); (void)sDescribe(r); break; }
    case 3: { _StatusProp r; a.GetStatusProp(&r); break; }
    case 4: { _IntepretProp r; a.GetInterpretProp(&r); break; }
    case 5: { _LithProp r; a.GetLithProp(&r); break; }
    case 6: { RecordArray<_StatusProp> x, y, z; a.GetStatusPropArray(x, op & 16 ? &y : nullptr, op & 32 ? &z : nullptr); break; }
    case 7: { RecordArray<_IntepretProp> x, y; a.GetInterpretPropArray(x, op & 16 ? &y : nullptr); break; }
    case 8: { RecordArray<_LithProp> x, y, z; a.GetLithPropArray(x, &y, op & 32 ? &z : nullptr); break; }
    case 9: { _SysCfgParam r; a.GetSysCfgParam(&r, version); Use(r, &CFFArchive::PutSysCfgParam); break; }
    case 10: { _HVSpaceProp r; a.GetHVSpaceProp(&r); Use(r, &CFFArchive::PutHVSpaceProp); break; }
    case 11: (void)sCfgReadMain(a, version); (void)sDescribeMainStore(); break;
    case 12: (void)sCfgReadMapWellLoc(a, version); break;
    case 13: (void)sCfgReadMapReserv(a, version); break;
    case 14: (void)sCfgReadMapFence(a, version); break;
    case 15: (void)sCfgReadMapCorrel(a, version); break;
    case 16: { _LayersProp r{}; a.GetLayersProp(&r, version); Use(r, &CFFArchive::PutLayersProp); break; }
    case 17: { _MapFrameProp r{}; a.GetMapFrameProp(&r, version); Use(r, &CFFArchive::PutMapFrameProp); break; }
    case 18: { _LegendProp r{}; a.GetLegendProp(&r, version); Use(r, &CFFArchive::PutLegendProp); break; }
    case 19: { _LegendMetaProp r{}; a.GetLegendMetaProp(&r, version); Use(r, &CFFArchive::PutLegendMetaProp); break; }
    case 20: { _ScaleProp r{}; a.GetScaleProp(&r, version); Use(r, &CFFArchive::PutScaleProp); break; }
    case 21: { _CurveParm r; a.GetCurveParm(&r, version); Use(r, &CFFArchive::PutCurveParm); break; }
    case 22: { RecordArray<_CurveParm> r; a.GetCurveParmArray(r, version); break; }
    case 23: { _PMTAutoParm r{}; a.GetPMTAutoParm(&r); Use(r, &CFFArchive::PutPMTAutoParm); break; }
    case 24: { _PMTMapProp r{}; a.GetPMTMapProp(&r, version); Use(r, &CFFArchive::PutPMTMapProp); break; }
    case 25: { _PMTBodyProp r{}; a.GetPMTBodyProp(&r, version); Use(r, &CFFArchive::PutPMTBodyProp); break; }
    case 26: { _PMTLableProp r{}; a.GetPMTLabelProp(&r, version); Use(r, &CFFArchive::PutPMTLabelProp); break; }
    case 27: { _OldProdProp r{}; a.GetOldProdProp(&r, version); Use(r, &CFFArchive::PutOldProdProp); break; }
    case 28: { _OldTestProp r{}; a.GetOldTestProp(&r, version); Use(r, &CFFArchive::PutOldTestProp); break; }
    case 29: { _JWTAutoParm r; a.GetJWTAutoParm(&r); Use(r, &CFFArchive::PutJWTAutoParm);
               _JWTMapProp m{}; a.GetJWTMapProp(&m); Use(m, &CFFArchive::PutJWTMapProp); break; }
    case 30: { _DJTMapProp r; a.GetDJTMapProp(&r); Use(r, &CFFArchive::PutDJTMapProp); break; }
    case 31: { _DJTTrackProp r; a.GetDJTTrackProp(&r, version); Use(r, &CFFArchive::PutDJTTrackProp); break; }
    case 32: { _DJTTrack r; a.GetDJTTrack(&r, version); Tree(r, &CFFArchive::PutDJTTrack); break; }
    case 33: { RecordArray<_DJTTrack> r; a.GetDJTTrackArray(r, version); Tree(r, &CFFArchive::PutDJTTrackArray); break; }
    case 34: { _DJTTempl r; a.GetDJTTempl(&r, version); Tree(r, &CFFArchive::PutDJTTempl); break; }
    case 35: { RecordArray<_DJTTempl> r; a.GetDJTTemplArray(r, version); Tree(r, &CFFArchive::PutDJTTemplArray); break; }
    default: (void)sCfgReadMapSingle(a, version); (void)sDescribeMapKind(sGetCfgStr(*sGetCfgLang(), 347)); break;
  }
  return 0;
}
