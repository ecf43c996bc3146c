// The archive layout of the system parameters, for their archive members and
// the whole-store stream.
#ifndef MAPCFG_STORE_SYSTEM_PARAM_FIELDS_H_
#define MAPCFG_STORE_SYSTEM_PARAM_FIELDS_H_

#include <cstdint>

#include "archive/record_io.h"
#include "mapcfg/store.h"

namespace mapcfg {

// Archives older than this hold no system parameters at all.
constexpr uint32_t kVersionSysCfgParam = 0x03012067;

template <class V>
void Fields(V& v, _SysCfgParam& r) {
  if constexpr (V::kReads) {
    // The user systems come only from the archive: whatever the record held
    // goes, even when the archive is too old to bring any.
    r.depthTexts1.clear();
    r.depthFactors.clear();
    r.depthTexts2.clear();
    r.coordTexts1.clear();
    r.coordFactors.clear();
    r.coordTexts2.clear();
    if (v.version() < kVersionSysCfgParam) {
      r.datumHeight = 0.0;
      r.depthSystem = 0;
      r.coordSystem = 0;
      return;
    }
  }
  v("datumHeight", r.datumHeight);
  v("depthSystem", r.depthSystem);
  v("coordSystem", r.coordSystem);
  // One row per user system: first text, factor (display units per metre),
  // second text; the count is that of the factors.
  v.Rows("depthSystems", r.depthTexts1, r.depthFactors, r.depthTexts2);
  v.Rows("coordSystems", r.coordTexts1, r.coordFactors, r.coordTexts2);
}

}  // namespace mapcfg

#endif  // MAPCFG_STORE_SYSTEM_PARAM_FIELDS_H_
