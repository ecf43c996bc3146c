// The platform's loader of shared libraries, behind two functions.
#ifndef MAPCFG_STORE_MODULE_LOADER_H_
#define MAPCFG_STORE_MODULE_LOADER_H_

#include <filesystem>

namespace mapcfg {
namespace detail {

// Loads the shared library at the native path `path` (a bare name is
// searched for as the platform does); null on failure. The module stays
// loaded for the life of the process.
void* OpenModule(const std::filesystem::path& path);
// The address of the export `name` of `module`, or null.
void* FindExport(void* module, const char* name);

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_STORE_MODULE_LOADER_H_
