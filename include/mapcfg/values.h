// Shared value types: double-precision geometry and ordered arrays.
#ifndef MAPCFG_VALUES_H_
#define MAPCFG_VALUES_H_

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {}  // namespace mapcfg

#endif  // MAPCFG_VALUES_H_
