// The keys the map record readers of the catalogues look up, listed from
// their key tables.
#ifndef MAPCFG_CATALOGS_READER_KEYS_H_
#define MAPCFG_CATALOGS_READER_KEYS_H_

#include "store/key_table.h"

namespace mapcfg {
namespace detail {

// Layers and spacing: every map kind, the single-well map included.
void AppendLayerKeys(KeyList& keys);

// Layers, spacing, frame, legend and scale: every map kind but the
// single-well map.
void AppendMapRecordKeys(KeyList& keys);

// The curve parameters, "Curve" and "FillingCurve" included.
void AppendCurveKeys(KeyList& keys);

// Production and test display (the well location map's block).
void AppendDisplayKeys(KeyList& keys);

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_READER_KEYS_H_
