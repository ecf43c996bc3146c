// The plane-shape and migration templates on any input. Bit 1 of the first
// byte chooses what the rest is:
//   0: a script, read in either language (bit 0: Chinese) by both tables'
//      readers; the tables' streams are written, read back and written
//      again, which must give the same bytes;
//   1: an archive stream: four bytes of version, a byte choosing a record
//      reader or a table's stream reader, then the stream. What a reader
//      leaves is written, read back with the current version and written
//      again, which must give the same bytes, and described.
#include <mapcfg/mapcfg.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "fuzz_common.h"

namespace {

using namespace mapcfg;

using mapcfg_fuzz::kCurrent;
using mapcfg_fuzz::Stable;

// The tables through their streams and back.
void TablesRoundTrip() {
  (void)sDescribePlaneShapes();
  (void)sDescribeDataMigrate();
  mapcfg_fuzz::StoreStable(
      [](CFFArchive& a) { return sCfgWritePlaneShapes(a).empty() && sCfgWriteDataMigrate(a).empty(); },
      [](CFFArchive& a) { return sCfgReadPlaneShapes(a, kCurrent).empty() && sCfgReadDataMigrate(a, kCurrent).empty(); });
}

void ReadStream(const uint8_t* data, size_t size) {
  mapcfg_fuzz::StreamInput input;
  if (!input.Parse(data, size)) return;
  auto& [version, op, a] = input;
  switch (op % 6) {
    case 0: { _PlaneShapeTempl r{}; a.GetPlaneShapeTempl(&r, version); Stable(r, &CFFArchive::PutPlaneShapeTempl, &CFFArchive::GetPlaneShapeTempl); break; }
    case 1: { _NoDiviType r{}; a.GetNoDiviType(&r, version); Stable(r, &CFFArchive::PutNoDiviType, &CFFArchive::GetNoDiviType); break; }
    case 2: { _MigraTempl r; a.GetMigraTempl(&r, version); Stable(r, &CFFArchive::PutMigraTempl, &CFFArchive::GetMigraTempl); break; }
    case 3: { _MigraItem r; a.GetMigraItem(&r, version); Stable(r, &CFFArchive::PutMigraItem, &CFFArchive::GetMigraItem); break; }
    case 4: (void)sCfgReadPlaneShapes(a, version); TablesRoundTrip(); break;
    default: (void)sCfgReadDataMigrate(a, version); TablesRoundTrip(); break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  mapcfg_fuzz::StoreReset reset;
  if (data[0] & 2) {
    ReadStream(data + 1, size - 1);
    return 0;
  }
  CCfgScript script;
  mapcfg_fuzz::OpenScript(script, data, size, "templates.cfg");
  sCfgReadPlaneShapes(script);
  sCfgReadDataMigrate(script);
  TablesRoundTrip();
  return 0;
}
