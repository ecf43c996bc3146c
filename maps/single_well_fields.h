// The archive layouts of the single-well chart records, for their archive
// members and the single-well stream.
#ifndef MAPCFG_MAPS_SINGLE_WELL_FIELDS_H_
#define MAPCFG_MAPS_SINGLE_WELL_FIELDS_H_

#include <type_traits>

#include "archive/record_io.h"
#include "catalogs/attribute_fields.h"
#include "catalogs/map_record_fields.h"
#include "mapcfg/maps.h"

namespace mapcfg {

static_assert(kMaxTrackDepth == detail::kMaxRecordNesting, "tracks nest as deep as the archive's records");

template <class V>
void Fields(V& v, _DJTMapProp& r) {
  v("Rlev", r.Rlev);
  v("EffectiveVal1", r.EffectiveVal1);
  v("EffectiveVal2", r.EffectiveVal2);
  v("PerforationSymbol", r.PerforationSymbol);
  // Only the script holds the other two symbols; they are shown, not stored.
  if constexpr (std::is_same_v<V, detail::RecordDescriber>) {
    v("PerforationPlug", r.PerforationPlug);
    v("PerforationUnplug", r.PerforationUnplug);
  }
}

template <class V>
void Fields(V& v, _DJTTrackProp& r) {
  v("Name", r.Name);
  v("Title", r.Title);
  v("Left", r.Left);
  v("Right", r.Right);
  v("Width", r.Width);
  v("Flags", r.Flags);
  v("Int1", r.Int1);
  v("Int2", r.Int2);
  v("Int3", r.Int3);
  v("Int4", r.Int4);
  v("Int5", r.Int5);
  v("Line1", r.Line1);
  v("Line2", r.Line2);
  v("Line3", r.Line3);
  v("Font1", r.Font1);
  v("Font2", r.Font2);
  v("Font3", r.Font3);
  v("Dbl1", r.Dbl1);
  v("Dbl2", r.Dbl2);
  v("Dbl3", r.Dbl3);
}

// A track lies one level below the track whose child array holds it.
template <class V>
void Fields(V& v, _DJTTrack& r) {
  if (!v.EnterNested()) return;
  v("Prop", r.Prop);
  v("Curves", r.Curves);
  v("Children", r.Children);
  v.LeaveNested();
}

template <class V>
void Fields(V& v, _DJTTempl& r) {
  v("Name", r.Name);
  v("Value", r.Value);
  v("Dbls", r.Dbls);
  v("Line", r.Line);
  v("Font", r.Font);
  v("Texts", r.Texts);
  v("Tracks", r.Tracks);
}

namespace detail {
// Whether every track of the templates lies within kMaxTrackDepth levels.
bool DJTTreesWithinDepth(const RecordArray<_DJTTempl>& templs);
}  // namespace detail

}  // namespace mapcfg

#endif  // MAPCFG_MAPS_SINGLE_WELL_FIELDS_H_
