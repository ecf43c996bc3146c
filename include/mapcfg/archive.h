// The tagged binary archive (CFFArchive).
#ifndef MAPCFG_ARCHIVE_H_
#define MAPCFG_ARCHIVE_H_

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {}  // namespace mapcfg

#endif  // MAPCFG_ARCHIVE_H_
