// The archive layouts of the well location map's parameters, for their
// archive members and the map's stream.
#ifndef MAPCFG_MAPS_WELLLOC_FIELDS_H_
#define MAPCFG_MAPS_WELLLOC_FIELDS_H_

#include "archive/record_io.h"
#include "mapcfg/maps.h"

namespace mapcfg {

template <class V>
void Fields(V& v, _JWTAutoParm& r) {
  v("DepthBaseMode", r.DepthBaseMode);
  v("StraBaseName", r.StraBaseName);
  v("SglBaseDepth", r.SglBaseDepth);
  v("SglDisplayMode", r.SglDisplayMode);
  v("Text", r.Text);
  v("Switch1", r.Switch1);
  v("Switch2", r.Switch2);
}

template <class V>
void Fields(V& v, _JWTMapProp& r) {
  v("WSymbolRadius", r.WSymbolRadius);
  v("WNameFontHeight", r.WNameFontHeight);
  v("HangingFootWallsDistance", r.HangingFootWallsDistance);
  v("ContourPosition", r.ContourPosition);
  v("AutoScanRdius", r.AutoScanRdius);
}

}  // namespace mapcfg

#endif  // MAPCFG_MAPS_WELLLOC_FIELDS_H_
