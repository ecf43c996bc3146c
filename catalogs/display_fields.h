// The archive layouts of the production and test display records, for their
// archive members and the well location map's stream.
#ifndef MAPCFG_CATALOGS_DISPLAY_FIELDS_H_
#define MAPCFG_CATALOGS_DISPLAY_FIELDS_H_

#include "archive/record_io.h"
#include "catalogs/attribute_fields.h"
#include "mapcfg/catalogs.h"

namespace mapcfg {

template <class V>
void Fields(V& v, _OldProdProp& r) {
  v("correDate", r.correDate);
  v("statMode", r.statMode);
  v("dataMode", r.dataMode);
  v("pictShape", r.pictShape);
  v("factorMode", r.factorMode);
  v("correMode", r.correMode);
  v("line", r.line);
  v("oilPatt", r.oilPatt);
  v("waterPatt", r.waterPatt);
  v("inpourPatt", r.inpourPatt);
  v("lblFont", r.lblFont);
}

template <class V>
void Fields(V& v, _OldTestProp& r) {
  v("pictShape", r.pictShape);
  v("factorMode", r.factorMode);
  v("ratiusMode", r.ratiusMode);
  v("line", r.line);
  v("oilPatt", r.oilPatt);
  v("waterPatt", r.waterPatt);
  v("lblFont", r.lblFont);
}

}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_DISPLAY_FIELDS_H_
