#include "mapcfg/version.h"

namespace mapcfg {
const char* sLibraryVersion() { return MAPCFG_VERSION_STRING; }
}  // namespace mapcfg
