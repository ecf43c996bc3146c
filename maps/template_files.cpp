// Statistics template files ("*.ctp"): one file, or every file of a folder,
// read into the store's templates.
#include "mapcfg/archive.h"
#include "mapcfg/maps.h"
#include "mapcfg/store.h"
#include "mapcfg/utils.h"

namespace mapcfg {

String sCfgReadCTPFile(const char* path) {
  CFFArchive a;
  if (!path || !a.FromFile(path)) return String();
  const String kind = a.GetString();
  if (!a.GetLastError().empty() || kind != "Statis") return String();  // not a statistics template: skipped
  return sCfgReadMapStat(path, a, 0, 1);
}

String sCfgReadCTPFiles(const String& dir) {
  const String folder = dir + "\\";
  StringArray names;
  sGetFiles((folder + "*.ctp").c_str(), &names);
  for (const String& name : names) {
    const String error = sCfgReadCTPFile((folder + name).c_str());
    if (!error.empty()) return error;
  }
  return String();
}

}  // namespace mapcfg
