// The keys the map parameter readers look up, listed from their key tables.
#ifndef MAPCFG_MAPS_READER_KEYS_H_
#define MAPCFG_MAPS_READER_KEYS_H_

#include "store/key_table.h"

namespace mapcfg {
namespace detail {

// The keys of a section map kind's own records; the fence map (`fence`) has
// no ruler and no model-line flags.
void AppendSectionKeys(KeyList& keys, bool fence);

// The keys of the well location map's own records.
void AppendWellLocKeys(KeyList& keys);

// The keys of the single-well chart properties ("Single Well Map").
void AppendSingleWellKeys(KeyList& keys);

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_MAPS_READER_KEYS_H_
