// Catalogues and drawing attribute records.
#ifndef MAPCFG_CATALOGS_H_
#define MAPCFG_CATALOGS_H_

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_H_
