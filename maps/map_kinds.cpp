// Whole map kinds: the well location map and the three section maps
// (reservoir profile, fence, multi-well correlation). Each kind has its own
// set of every record, read from one block named by the kind's display name,
// and archived as one stream in a fixed order.
#include "archive/record_io.h"
#include "catalogs/attribute_fields.h"
#include "catalogs/display_fields.h"
#include "catalogs/map_record_fields.h"
#include "catalogs/reader_keys.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "maps/reader_keys.h"
#include "maps/section_fields.h"
#include "maps/single_well_fields.h"
#include "maps/wellloc_fields.h"
#include "store/config_strings.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

// The records every map kind has of its own.
struct KindSet {
  _LayersProp layers{};
  _HVSpaceProp space{};
  _MapFrameProp frame{};
  _LegendProp legend{};
  _ScaleProp scale{};
  RecordArray<_CurveParm> curves;
};

// The single-well map (the last kind) has its own layers and spacing only.
constexpr int kKindCount = 5;
constexpr cfg::Str kKinds[kKindCount] = {cfg::kWellLocationMap, cfg::kReservoirProfileMap, cfg::kFenceMap,
                                         cfg::kMultiWellCorrelationMap, cfg::kSingleWellMap};

struct KindSets {
  KindSet sets[kKindCount];
};

// The set of the kind named `kind` in the current language, or null; the
// single-well map's only when `single`.
KindSet* FindSet(const String& kind, bool single = true) {
  for (int i = 0; i < kKindCount; ++i)
    if (kind == cfg::Name(kKinds[i]))
      return single || kKinds[i] != cfg::kSingleWellMap ? &detail::StoreTable<KindSets>().sets[i] : nullptr;
  return nullptr;
}

KindSet& Set(cfg::Str kind) { return *FindSet(cfg::Name(kind)); }

// A section map kind's stream, in its archive order.
struct SectionStream {
  cfg::Str kind;
};

template <class V>
void Fields(V& v, SectionStream& s) {
  const String name = cfg::Name(s.kind);
  const bool fence = s.kind == cfg::kFenceMap;
  KindSet& set = Set(s.kind);
  v("layers", set.layers);
  v("space", set.space);
  v("autoParm", *sCfgGetPMTAutoParmPtr(name));
  v("mapProp", *sCfgGetPMTMapPropPtr(name));
  v("frame", set.frame);
  v("bodyProp", *sCfgGetPMTBodyPropPtr(name));
  if (!fence) v("labelProp", *sCfgGetPMTLabelPropPtr(name));
  v("legend", set.legend);
  v("scale", set.scale);
  if (!fence) v("modelFlag", *sCfgGetPMTModelPropPtr(name));
  v("faultLine", *sCfgGetPMTFaultPropPtr(name));
  v("diviLine", *sCfgGetPMTDiviPropPtr(name));
  v("curves", set.curves);
}

struct WellLocStream {};

template <class V>
void Fields(V& v, WellLocStream&) {
  KindSet& set = Set(cfg::kWellLocationMap);
  v("layers", set.layers);
  v("space", set.space);
  v("autoParm", *sCfgGetJWTAutoParmPtr());
  v("mapProp", *sCfgGetJWTMapPropPtr());
  v("frame", set.frame);
  v("legend", set.legend);
  v("scale", set.scale);
  v("oldProd", *sCfgGetOldProdPropPtr());
  v("oldTest", *sCfgGetOldTestPropPtr());
}

struct SingleWellStream {};

template <class V>
void Fields(V& v, SingleWellStream&) {
  KindSet& set = Set(cfg::kSingleWellMap);
  _CfgMapSingle& registry = *sCfgGetMapSinglePtr();
  v("layers", set.layers);
  v("space", set.space);
  v("mapProp", *sCfgGetDJTMapPropPtr());
  v("names", registry.Names);
  v("templs", registry.Templs);
}

template <class Stream>
String Write(CFFArchive& a, Stream stream) {
  detail::PutRecord(a, stream);
  return a.GetLastError();
}

template <class Stream>
String Read(CFFArchive& a, Stream stream, uint32_t version) {
  detail::GetRecord(a, stream, version);
  return a.GetLastError();
}

void ReadSection(CCfgScript& script, cfg::Str kind) {
  const String name = cfg::Name(kind);
  const bool fence = kind == cfg::kFenceMap;
  KindSet& set = Set(kind);
  const float ratio = sCfgReadLayersProp(script, name, &set.layers);
  sCfgReadHVSpaceProp(script, name, &set.space);
  sCfgReadPMTAutoParm(script, name, sCfgGetPMTAutoParmPtr(name));
  sCfgReadPMTMapProp(script, name, sCfgGetPMTMapPropPtr(name), ratio);
  sCfgReadMapFrameProp(script, name, &set.frame);
  sCfgReadPMTBodyProp(script, name, sCfgGetPMTBodyPropPtr(name));
  if (!fence) sCfgReadPMTLabelProp(script, name, sCfgGetPMTLabelPropPtr(name));
  sCfgReadLegendProp(script, name, &set.legend, ratio);
  sCfgReadScaleProp(script, name, &set.scale);
  if (!fence) sCfgReadPMTModelProp(script, name, sCfgGetPMTModelPropPtr(name));
  sCfgReadPMTFaultProp(script, name, sCfgGetPMTFaultPropPtr(name));
  sCfgReadPMTDiviProp(script, name, sCfgGetPMTDiviPropPtr(name));
  sCfgReadCurveParms(script, name, set.curves, ratio);
}

template <class R>
R* Member(const String& kind, R KindSet::*member, bool single = false) {
  KindSet* set = FindSet(kind, single);
  return set ? &(set->*member) : nullptr;
}

}  // namespace

_LayersProp* sCfgGetLayersPropPtr(const String& kind) { return Member(kind, &KindSet::layers, true); }
_HVSpaceProp* sCfgGetHVSpacePropPtr(const String& kind) { return Member(kind, &KindSet::space, true); }
_MapFrameProp* sCfgGetMapFramePropPtr(const String& kind) { return Member(kind, &KindSet::frame); }
_LegendProp* sCfgGetLegendPropPtr(const String& kind) { return Member(kind, &KindSet::legend); }
_ScaleProp* sCfgGetScalePropPtr(const String& kind) { return Member(kind, &KindSet::scale); }
RecordArray<_CurveParm>* sCfgGetCurveParmsPtr(const String& kind) { return Member(kind, &KindSet::curves); }

FieldTexts sDescribeMapKind(const String& kind) {
  if (kind == cfg::Name(cfg::kWellLocationMap)) return detail::DescribeRecord(WellLocStream{});
  if (kind == cfg::Name(cfg::kSingleWellMap)) return detail::DescribeRecord(SingleWellStream{});
  for (cfg::Str k : {cfg::kReservoirProfileMap, cfg::kFenceMap, cfg::kMultiWellCorrelationMap})
    if (kind == cfg::Name(k)) return detail::DescribeRecord(SectionStream{k});
  return FieldTexts();
}

std::vector<int> sDescribeMapKindKeys(const String& kind) {
  detail::KeyList keys;
  if (kind == cfg::Name(cfg::kWellLocationMap)) {
    detail::AppendMapRecordKeys(keys);
    detail::AppendWellLocKeys(keys);
    detail::AppendDisplayKeys(keys);
  }
  for (cfg::Str k : {cfg::kReservoirProfileMap, cfg::kFenceMap, cfg::kMultiWellCorrelationMap}) {
    if (kind != cfg::Name(k)) continue;
    detail::AppendMapRecordKeys(keys);
    detail::AppendSectionKeys(keys, k == cfg::kFenceMap);
    detail::AppendCurveKeys(keys);
  }
  if (kind == cfg::Name(cfg::kSingleWellMap)) {
    detail::AppendLayerKeys(keys);
    detail::AppendSingleWellKeys(keys);
  }
  return std::vector<int>(keys.begin(), keys.end());
}

void sCfgReadMapReserv(CCfgScript& script) { ReadSection(script, cfg::kReservoirProfileMap); }
void sCfgReadMapFence(CCfgScript& script) { ReadSection(script, cfg::kFenceMap); }
void sCfgReadMapCorrel(CCfgScript& script) { ReadSection(script, cfg::kMultiWellCorrelationMap); }
String sCfgWriteMapReserv(CFFArchive& a) { return Write(a, SectionStream{cfg::kReservoirProfileMap}); }
String sCfgWriteMapFence(CFFArchive& a) { return Write(a, SectionStream{cfg::kFenceMap}); }
String sCfgWriteMapCorrel(CFFArchive& a) { return Write(a, SectionStream{cfg::kMultiWellCorrelationMap}); }
String sCfgReadMapReserv(CFFArchive& a, uint32_t version) { return Read(a, SectionStream{cfg::kReservoirProfileMap}, version); }
String sCfgReadMapFence(CFFArchive& a, uint32_t version) { return Read(a, SectionStream{cfg::kFenceMap}, version); }
String sCfgReadMapCorrel(CFFArchive& a, uint32_t version) { return Read(a, SectionStream{cfg::kMultiWellCorrelationMap}, version); }

void sCfgReadMapWellLoc(CCfgScript& script) {
  const String name = cfg::Name(cfg::kWellLocationMap);
  KindSet& set = Set(cfg::kWellLocationMap);
  const float ratio = sCfgReadLayersProp(script, name, &set.layers);
  sCfgReadHVSpaceProp(script, name, &set.space);
  sCfgReadJWTAutoParm(script, sCfgGetJWTAutoParmPtr());
  sCfgReadJWTMapProp(script, sCfgGetJWTMapPropPtr());
  sCfgReadMapFrameProp(script, name, &set.frame);
  sCfgReadLegendProp(script, name, &set.legend, ratio);
  sCfgReadScaleProp(script, name, &set.scale);
  sCfgReadOldProdProp(script, sCfgGetOldProdPropPtr(), ratio);
  sCfgReadOldTestProp(script, sCfgGetOldTestPropPtr(), ratio);
}
String sCfgWriteMapWellLoc(CFFArchive& a) { return Write(a, WellLocStream{}); }
String sCfgReadMapWellLoc(CFFArchive& a, uint32_t version) { return Read(a, WellLocStream{}, version); }

String sCfgWriteMapSingle(CFFArchive& a) {
  if (!detail::DJTTreesWithinDepth(sCfgGetMapSinglePtr()->Templs)) {
    ArchiveCore::Fail(a, kMsgLibraryFailure);
    return a.GetLastError();
  }
  return Write(a, SingleWellStream{});
}
String sCfgReadMapSingle(CFFArchive& a, uint32_t version) { return Read(a, SingleWellStream{}, version); }

}  // namespace mapcfg
