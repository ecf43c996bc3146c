// Version of the mapcfg library.
#ifndef MAPCFG_VERSION_H_
#define MAPCFG_VERSION_H_

#include "mapcfg/export.h"

#define MAPCFG_VERSION_MAJOR 0
#define MAPCFG_VERSION_MINOR 1
#define MAPCFG_VERSION_PATCH 0
#define MAPCFG_VERSION_STRING "0.1.0"

namespace mapcfg {
// The version of the library actually loaded, "major.minor.patch".
MAPCFG_EXPORT const char* sLibraryVersion();
}  // namespace mapcfg

#endif  // MAPCFG_VERSION_H_
