// A host module as the suite's programs are: a shared library that links
// mapcfg, loaded and unloaded by its process at will.
#include <mapcfg/mapcfg.h>

#if defined(_WIN32)
#define HOST_EXPORT extern "C" __declspec(dllexport)
#else
#define HOST_EXPORT extern "C" __attribute__((visibility("default")))
#endif

// Reads the configuration script `path` with every reader, packs it and
// returns how many fields the whole configuration has.
HOST_EXPORT long host_load(const char* path) {
  *mapcfg::sGetCfgLang() = 0;
  mapcfg::CCfgScript script;
  script.Open(path, 0);
  mapcfg::sCfgReadAll(script);
  mapcfg::CFFArchive archive;
  if (!mapcfg::sCfgWritePack(archive).empty()) return -1;
  return static_cast<long>(mapcfg::sDescribeAll().size());
}
