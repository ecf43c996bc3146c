// The archive layouts of the catalogue records, for their CFFArchive
// members, the describer and the whole-store stream.
#ifndef MAPCFG_CATALOGS_CATALOG_FIELDS_H_
#define MAPCFG_CATALOGS_CATALOG_FIELDS_H_

#include "archive/record_io.h"
#include "mapcfg/catalogs.h"

namespace mapcfg {

template <class V>
void Fields(V& v, _StatusProp& r) {
  v("name", r.name);
  v("color", r.color);
  v("displayNo", r.displayNo);
  v("color2", r.color2);
}

template <class V>
void Fields(V& v, _IntepretProp& r) {
  v("type", r.type);
  v("density", r.density);
  v("symbolName", r.symbolName);
  v("patternBG", r.patternBG);
  v("patternName", r.patternName);
  v("displayNo", r.displayNo);
  v("standardName", r.standardName);
  v("patternColor", r.patternColor);
}

template <class V>
void Fields(V& v, _LithProp& r) {
  v("name", r.name);
  v("ratio", r.ratio);
  v("symbolName", r.symbolName);
  v("patternName", r.patternName);
  v("color", r.color);
  v("displayNo", r.displayNo);
}

// Three Strings, two Strings, Long, Long, Byte, String, String, Long, Byte,
// String.
template <class V>
void Fields(V& v, _TextFmt& r) {
  v("texts1", r.texts1);
  v("texts2", r.texts2);
  v("num1", r.num1);
  v("num2", r.num2);
  v("char1", r.char1);
  v("upper1", r.upper1);
  v("upper2", r.upper2);
  v("num3", r.num3);
  v("char2", r.char2);
  v("text3", r.text3);
}

}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_CATALOG_FIELDS_H_
