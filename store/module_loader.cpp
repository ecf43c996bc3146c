// Shared libraries through dlopen (POSIX) or LoadLibrary (Windows).
#include "store/module_loader.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace mapcfg {
namespace detail {

#if defined(_WIN32)
void* OpenModule(const std::filesystem::path& path) {
  // No error dialog for a library that is missing or broken: the caller
  // learns of it from the null handle.
  const UINT old_mode = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  HMODULE module = LoadLibraryW(path.c_str());
  SetErrorMode(old_mode);
  return reinterpret_cast<void*>(module);
}
void* FindExport(void* module, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name));
}
#else
void* OpenModule(const std::filesystem::path& path) { return dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL); }
void* FindExport(void* module, const char* name) { return dlsym(module, name); }
#endif

}  // namespace detail
}  // namespace mapcfg
