// The archive layouts of the map records (layers, frame, legend, scale,
// curve parameters), for the map kinds that embed them.
//
// These layouts are kept in map documents. A change to one adds a version
// constant after kMapRecordsVersion1 and guards the new fields with
// `if (v.version() >= kMapRecords...)` so that older documents still read.
#ifndef MAPCFG_CATALOGS_MAP_RECORD_FIELDS_H_
#define MAPCFG_CATALOGS_MAP_RECORD_FIELDS_H_

#include "catalogs/attribute_fields.h"
#include "mapcfg/catalogs.h"

namespace mapcfg {

template <class V>
void Fields(V& v, _LayersProp& r) {
  v("PatternRatio", r.PatternRatio);
  v("VertWellMode", r.VertWellMode);
  v("MapHVRatio", r.MapHVRatio);
  v("MapHorzExpand", r.MapHorzExpand);
  v("MajorHigh", r.MajorHigh);
  v("MapVertMajorIncrement", r.MapVertMajorIncrement);
}

template <class V>
void Fields(V& v, _MapFrameProp& r) {
  v("MapName", r.MapName);
  v("MapMarkLabel", r.MapMarkLabel);
  v("DrawMapInfo", r.DrawMapInfo);
  v("FrameFlags", r.FrameFlags);
  v("MapTickLength", r.MapTickLength);
  v("VScaleSpace", r.VScaleSpace);
  v("HScaleSpace", r.HScaleSpace);
  v("VGridLineSpace", r.VGridLineSpace);
  v("HGridLineSpace", r.HGridLineSpace);
  v("BoundOutExt", r.BoundOutExt);
  v("MapNameFont", r.MapNameFont);
  v("MapLabelFont", r.MapLabelFont);
  v("MapInfoFont", r.MapInfoFont);
  v("MajorScaleFontHeight", r.MajorScaleFontHeight);
  v("MinorScaleFontHeight", r.MinorScaleFontHeight);
  v("FrameBorder", r.FrameBorder);
}

template <class V>
void Fields(V& v, _LegendMetaProp& r) {
  v("SymbolRadius", r.SymbolRadius);
  v("Line", r.Line);
  v("Font", r.Font);
}

template <class V>
void Fields(V& v, _LegendProp& r) {
  v("Legend", r.Legend);
  v("Border", r.Border);
  v("Ground", r.Ground);
  v("LineSpaceRatio", r.LineSpaceRatio);
  v("SegmentSpaceRatio", r.SegmentSpaceRatio);
  v("SymbolSpaceRatio", r.SymbolSpaceRatio);
  v("BaseCharNumber", r.BaseCharNumber);
  v("CharHeightRatio", r.CharHeightRatio);
  v("LegendMetaCols", r.LegendMetaCols);
  v("Meta", r.Meta);
}

template <class V>
void Fields(V& v, _ScaleProp& r) {
  v("ScaleHeight", r.ScaleHeight);
  v("ScaleMinorNumber", r.ScaleMinorNumber);
  v("ScaleMajorNumber", r.ScaleMajorNumber);
  v("ScaleMajorSpace", r.ScaleMajorSpace);
  v("ScaleMinorFactor", r.ScaleMinorFactor);
  v("ScaleMajorFactor", r.ScaleMajorFactor);
  v("ScaleMinorUnit", r.ScaleMinorUnit);
  v("ScaleMajorUnit", r.ScaleMajorUnit);
  v("Line", r.Line);
}

template <class V>
void Fields(V& v, _CurveProp& r) {
  v("LeftValue", r.LeftValue);
  v("RightValue", r.RightValue);
  v("InvalidValue", r.InvalidValue);
  v("Line", r.Line);
}

template <class V>
void Fields(V& v, _CrvFillItem& r) {
  v("Curve", r.Curve);
  v("Patt", r.Patt);
}

template <class V>
void Fields(V& v, _CurveParm& r) {
  v("Code", r.Code);
  v("Name", r.Name);
  v("Prop", r.Prop);
  v("Fills", r.Fills);
}

}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_MAP_RECORD_FIELDS_H_
