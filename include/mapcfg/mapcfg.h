// mapcfg: configuration scripts, process-wide tables and tagged archives for
// geology mapping hosts. Include this header for the whole interface.
#ifndef MAPCFG_MAPCFG_H_
#define MAPCFG_MAPCFG_H_

#include "mapcfg/export.h"
#include "mapcfg/types.h"
#include "mapcfg/platform.h"
#include "mapcfg/utils.h"
#include "mapcfg/values.h"
#include "mapcfg/script.h"
#include "mapcfg/store.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/maps.h"
#include "mapcfg/describe.h"
#include "mapcfg/configuration.h"
#include "mapcfg/version.h"

#endif  // MAPCFG_MAPCFG_H_
