// The archive layouts of the drawing attribute records, for every record
// that embeds them.
#ifndef MAPCFG_CATALOGS_ATTRIBUTE_FIELDS_H_
#define MAPCFG_CATALOGS_ATTRIBUTE_FIELDS_H_

#include <cmath>

#include "archive/record_io.h"
#include "mapcfg/catalogs.h"

namespace mapcfg {

// Archive versions whose layouts changed.
constexpr uint32_t kVersionPattRatioDropped = 0x02007344;  // older: a second float after the ratio
constexpr uint32_t kVersionZeroLineWidth = 0x02017519;     // older: a width of 0 means 0.01

template <class V>
void Fields(V& v, LINE_PROP& r) {
  v("color", r.color);
  v("width", r.width);
  if constexpr (V::kReads) {
    // Older documents stored no width as 0 and drew it thin.
    if (v.ok() && v.version() < kVersionZeroLineWidth && std::fabs(static_cast<double>(r.width)) < 0.0005f)
      r.width = 0.01f;
  }
  v("style", r.style);
}

template <class V>
void Fields(V& v, PATT_PROP& r) {
  v("foreColor", r.foreColor);
  v("backColor", r.backColor);
  v("ratio", r.ratio);
  if constexpr (V::kReads) {
    if (v.version() < kVersionPattRatioDropped) v.template Discard<float>("ratio2");
  }
  v("name", r.name);
}

template <class V>
void Fields(V& v, FONT_PROP& r) {
  v("color", r.color);
  v("height", r.height);
  v("fWidth", r.fWidth);
  v("fAngle", r.fAngle);
  v("weight", r.weight);
  v("charSet", r.charSet);
  v("flags", r.flags);
  v("faceName", r.faceName);
}

template <class V>
void Fields(V& v, _HVSpaceProp& r) {
  v("hSpace", r.hSpace);
  v("vSpace", r.vSpace);
}

}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_ATTRIBUTE_FIELDS_H_
