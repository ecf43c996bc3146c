// Export macro for the mapcfg interface.
//
// A shared build compiles the library with hidden visibility; only what is
// marked MAPCFG_EXPORT is visible to hosts. MAPCFG_BUILDING is defined while
// the library itself is compiled, MAPCFG_SHARED whenever the library is (or is
// used as) a shared library; the CMake package sets it for hosts.
#ifndef MAPCFG_EXPORT_H_
#define MAPCFG_EXPORT_H_

#if defined(MAPCFG_SHARED)
#if defined(_WIN32)
#if defined(MAPCFG_BUILDING)
#define MAPCFG_EXPORT __declspec(dllexport)
#else
#define MAPCFG_EXPORT __declspec(dllimport)
#endif
#else
#define MAPCFG_EXPORT __attribute__((visibility("default")))
#endif
#else
#define MAPCFG_EXPORT
#endif

#endif  // MAPCFG_EXPORT_H_
