// The platform's loader of shared libraries, behind two functions.
#ifndef MAPCFG_STORE_MODULE_LOADER_H_
#define MAPCFG_STORE_MODULE_LOADER_H_

#include <string>

namespace mapcfg {
namespace detail {

// Loads the shared library at the native path `path`; null on failure. The
// module stays loaded for the life of the process.
void* OpenModule(const std::string& path);
// The address of the export `name` of `module`, or null.
void* FindExport(void* module, const char* name);

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_STORE_MODULE_LOADER_H_
