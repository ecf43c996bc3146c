// Map-type templates.
#ifndef MAPCFG_MAPS_H_
#define MAPCFG_MAPS_H_

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {}  // namespace mapcfg

#endif  // MAPCFG_MAPS_H_
