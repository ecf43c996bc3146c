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

// Exported classes keep standard-library members (std::string, std::vector)
// in their private parts. MSVC warns (C4251) that those members have no DLL
// interface of their own. That is so by design: hosts reach them only
// through the class's exported functions, and a host must be built with the
// same compiler and standard library as mapcfg anyway, since the interface
// passes std::string by value. The warning is silenced around exactly those
// members, and nowhere else.
#if defined(_MSC_VER)
#define MAPCFG_STD_MEMBERS_BEGIN __pragma(warning(push)) __pragma(warning(disable : 4251))
#define MAPCFG_STD_MEMBERS_END __pragma(warning(pop))
#else
#define MAPCFG_STD_MEMBERS_BEGIN
#define MAPCFG_STD_MEMBERS_END
#endif

#endif  // MAPCFG_EXPORT_H_
