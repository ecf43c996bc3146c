// Single-well chart records: the chart properties, the template registry,
// copies, lookup, deletion and the archive members of tracks and templates.
#include "archive/archive_core.h"
#include "base/text_bytes.h"
#include "mapcfg/archive.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "maps/reader_keys.h"
#include "maps/single_well_fields.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

using detail::KeyRow;
using detail::Rule;
using detail::Scan;

struct SingleWellTable {
  _DJTMapProp mapProp;
  _CfgMapSingle registry;
};

const KeyRow<_DJTMapProp> kMapRows[] = {
    {cfg::kRlev, Scan::kDouble, &_DJTMapProp::Rlev, Rule::kEmptyGives, 0.125},
    {cfg::kEffectiveVal1, Scan::kDouble, &_DJTMapProp::EffectiveVal1, Rule::kEmptyGives, -999.25},
    {cfg::kEffectiveVal2, Scan::kDouble, &_DJTMapProp::EffectiveVal2, Rule::kEmptyGives, -999.25},
    {cfg::kPerforationSymbol, Scan::kText, &_DJTMapProp::PerforationSymbol},
    {cfg::kPerforationPlug, Scan::kText, &_DJTMapProp::PerforationPlug},
    {cfg::kPerforationUnplug, Scan::kText, &_DJTMapProp::PerforationUnplug},
};

// Whether no track of `tracks` (at `level`) or below lies deeper than
// kMaxTrackDepth. Never descends further than that.
bool WithinDepth(const RecordArray<_DJTTrack>& tracks, int level) {
  for (const std::unique_ptr<_DJTTrack>& t : tracks)
    if (level > kMaxTrackDepth || !WithinDepth(t->Children, level + 1)) return false;
  return true;
}

bool WithinDepth(const RecordArray<_DJTTrack>& tracks) { return WithinDepth(tracks, 1); }
bool WithinDepth(const _DJTTrack& track) { return WithinDepth(track.Children, 2); }
bool WithinDepth(const _DJTTempl& templ) { return WithinDepth(templ.Tracks, 1); }
bool WithinDepth(const RecordArray<_DJTTempl>& templs) {
  for (const std::unique_ptr<_DJTTempl>& t : templs)
    if (!WithinDepth(*t)) return false;
  return true;
}

// Writes `record` unless a tree in it is too deep (then error 539 and 0).
template <class R>
int PutTree(CFFArchive& a, const R& record) {
  if (!WithinDepth(record)) {
    ArchiveCore::Fail(a, kMsgLibraryFailure);
    return 0;
  }
  return detail::PutRecord(a, record);
}

}  // namespace

namespace detail {
bool DJTTreesWithinDepth(const RecordArray<_DJTTempl>& templs) { return WithinDepth(templs); }
}  // namespace detail

_DJTMapProp* sCfgGetDJTMapPropPtr() { return &detail::StoreTable<SingleWellTable>().mapProp; }
_CfgMapSingle* sCfgGetMapSinglePtr() { return &detail::StoreTable<SingleWellTable>().registry; }

void sCfgReadDJTMapProp(CCfgScript& script, _DJTMapProp* prop) {
  if (!prop) return;
  detail::ReadKeys(script, cfg::Name(cfg::kSingleWellMap), *prop, kMapRows);
}

void detail::AppendSingleWellKeys(KeyList& keys) { AppendKeys(keys, kMapRows); }

void sCfgCopyDJTMapProp(_DJTMapProp* dst, const _DJTMapProp* src) {
  if (dst && src) *dst = *src;
}
void sCfgCopyDJTTrackProp(_DJTTrackProp* dst, const _DJTTrackProp* src) {
  if (dst && src) *dst = *src;
}

_DJTTempl* sCfgFindDJTTempl(const char* name) {
  if (!name) return nullptr;
  for (const std::unique_ptr<_DJTTempl>& t : sCfgGetMapSinglePtr()->Templs)
    if (detail::EqualsNoCase(t->Name, name)) return t.get();
  return nullptr;
}

void sCfgDelDJTTrack(_DJTTrack* track) {
  if (!track) return;
  sCfgClearCurveParms(track->Curves);
  while (!track->Children.empty()) {
    sCfgDelDJTTrack(track->Children.back().release());
    track->Children.pop_back();
  }
  RecordArray<_DJTTrack>().swap(track->Children);
  delete track;
}

void sCfgDelDJTTempl(_DJTTempl* templ) {
  if (!templ) return;
  while (!templ->Tracks.empty()) {
    sCfgDelDJTTrack(templ->Tracks.back().release());
    templ->Tracks.pop_back();
  }
  templ->Texts.clear();
  RecordArray<_DJTTrack>().swap(templ->Tracks);
  delete templ;
}

int CFFArchive::PutDJTMapProp(const _DJTMapProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetDJTMapProp(_DJTMapProp* prop) {
  return prop ? detail::GetRecord(*this, *prop, detail::kCurrentVersion) : 0;
}
int CFFArchive::PutDJTTrackProp(const _DJTTrackProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetDJTTrackProp(_DJTTrackProp* prop, uint32_t version) {
  return prop ? detail::GetRecord(*this, *prop, version) : 0;
}
int CFFArchive::PutDJTTrack(const _DJTTrack* track) { return track ? PutTree(*this, *track) : 0; }
int CFFArchive::GetDJTTrack(_DJTTrack* track, uint32_t version) {
  return track ? detail::GetRecord(*this, *track, version) : 0;
}
int CFFArchive::PutDJTTempl(const _DJTTempl* templ) { return templ ? PutTree(*this, *templ) : 0; }
int CFFArchive::GetDJTTempl(_DJTTempl* templ, uint32_t version) {
  return templ ? detail::GetRecord(*this, *templ, version) : 0;
}
int CFFArchive::PutDJTTrackArray(const RecordArray<_DJTTrack>& tracks) { return PutTree(*this, tracks); }
int CFFArchive::GetDJTTrackArray(RecordArray<_DJTTrack>& tracks, uint32_t version) {
  return detail::GetRecord(*this, tracks, version);
}
int CFFArchive::PutDJTTemplArray(const RecordArray<_DJTTempl>& templs) { return PutTree(*this, templs); }
int CFFArchive::GetDJTTemplArray(RecordArray<_DJTTempl>& templs, uint32_t version) {
  return detail::GetRecord(*this, templs, version);
}

FieldTexts sDescribe(const _DJTMapProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _DJTTrackProp& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
