// Catalogues and drawing attribute records.
#ifndef MAPCFG_CATALOGS_H_
#define MAPCFG_CATALOGS_H_

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {

// Horizontal and vertical spacing of map items. Archived as two scalar
// doubles in member order (CFFArchive::PutHVSpaceProp).
struct _HVSpaceProp {
  double hSpace = 0.0;
  double vSpace = 0.0;
};

}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_H_
