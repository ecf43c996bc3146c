// The archive layouts of the section map records, for their archive members
// and the stream of a whole map kind.
#ifndef MAPCFG_MAPS_SECTION_FIELDS_H_
#define MAPCFG_MAPS_SECTION_FIELDS_H_

#include <type_traits>

#include "archive/record_io.h"
#include "catalogs/attribute_fields.h"
#include "mapcfg/maps.h"
#include "mapcfg/values.h"

namespace mapcfg {

// A point as PutDblPoint writes it: x, then y. As GetDblPoint, x keeps what
// the archive gave even when its read failed.
template <class V>
void Fields(V& v, CDblPoint& r) {
  v("x", r.x);
  v("y", r.y);
}

template <class V>
void Fields(V& v, _PMTAutoParm& r) {
  v("flag0", r.flag0);
  v("FlattenByElev", r.FlattenByElev);
  v("Point1", r.Point1);
  v("Point2", r.Point2);
  v("CreateByHoleSection", r.CreateByHoleSection);
  v("TopVD", r.TopVD);
  v("BottomVD", r.BottomVD);
  v("AutoCreateFlags", r.AutoCreateFlags);
  v("FixedSpaceNegative", r.FixedSpaceNegative);
  v("FixedSpace", r.FixedSpace);
  v("Text", r.Text);
}

template <class V>
void Fields(V& v, _PMTMapProp& r) {
  v("HoleAxialLine", r.HoleAxialLine);
  v("LayerDispFlags", r.LayerDispFlags);
  v("PlaneDispFlags", r.PlaneDispFlags);
  v("FaultDisplacement", r.FaultDisplacement);
  v("Rlev", r.Rlev);
  v("EffectiveVal1", r.EffectiveVal1);
  v("EffectiveVal2", r.EffectiveVal2);
  v("PerforationSymbol", r.PerforationSymbol);
  v("LeastInterlayer", r.LeastInterlayer);
  v("FmtGroundPatt", r.FmtGroundPatt);
  v("SublayerPatt", r.SublayerPatt);
  v("FmtTLine", r.FmtTLine);
  v("FmtBLine", r.FmtBLine);
  v("SublTLine", r.SublTLine);
  v("SublBLine", r.SublBLine);
  v("InteTLine", r.InteTLine);
  v("InteBLine", r.InteBLine);
  v("SublayerFillLith", r.SublayerFillLith);
  // Only the script holds the other two symbols; they are shown, not stored.
  if constexpr (std::is_same_v<V, detail::RecordDescriber>) {
    v("PerforationPlug", r.PerforationPlug);
    v("PerforationUnplug", r.PerforationUnplug);
  }
}

template <class V>
void Fields(V& v, _PMTBodyProp& r) {
  v("WHeadDispFlags", r.WHeadDispFlags);
  v("WNameUOffset", r.WNameUOffset);
  v("WSymbolUOffset", r.WSymbolUOffset);
  v("WSymbolRadius", r.WSymbolRadius);
  v("HoleWidth", r.HoleWidth);
  v("WellLftLinePosition", r.WellLftLinePosition);
  v("WellRgtLinePosition", r.WellRgtLinePosition);
  v("HoleUSpace", r.HoleUSpace);
  v("HoleDSpace", r.HoleDSpace);
  v("CHeadNameFontHeight", r.CHeadNameFontHeight);
  v("CHeadScaleFontHeight", r.CHeadScaleFontHeight);
  v("LayerLeftPos", r.LayerLeftPos);
  v("LayerRightPos", r.LayerRightPos);
  v("InteSymbolLPos", r.InteSymbolLPos);
  v("InteSymbolRPos", r.InteSymbolRPos);
  v("BeforeGridNumber", r.BeforeGridNumber);
  v("AfterGridNumber", r.AfterGridNumber);
  v("HoleBorder", r.HoleBorder);
  v("WNameFont", r.WNameFont);
  v("Reserved", r.Reserved);
}

template <class V>
void Fields(V& v, _PMTLableProp& r) {
  v("RulerHOffset", r.RulerHOffset);
  v("RulerLineOffset", r.RulerLineOffset);
  v("RulerTickLength", r.RulerTickLength);
  v("RulerScaleSpace", r.RulerScaleSpace);
  v("RulerLine", r.RulerLine);
  v("RulerMarkWidth", r.RulerMarkWidth);
  v("RulerFmtFont", r.RulerFmtFont);
  v("RulerScaleFontHeight", r.RulerScaleFontHeight);
}

}  // namespace mapcfg

#endif  // MAPCFG_MAPS_SECTION_FIELDS_H_
