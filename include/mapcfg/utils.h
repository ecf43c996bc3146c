// General utilities: files and paths, number and text conversions, variant
// conversions. All functions are stateless; none reports errors except by
// its result.
#ifndef MAPCFG_UTILS_H_
#define MAPCFG_UTILS_H_

#include <cstdint>
#include <string>

#include "mapcfg/export.h"
#include "mapcfg/platform.h"
#include "mapcfg/types.h"

namespace mapcfg {

// --- Files and paths ----------------------------------------------------------
// Paths use "\" (and "/" on POSIX) as separator and may begin with a drive "X:".

// Everything before the last "\" or "/", or up to and including the last ":"
// when that comes later; empty when neither occurs ("C:\a\b.cfg" -> "C:\a").
MAPCFG_EXPORT String sGetDirFromPath(String path);
// Everything after the last "\", "/" or ":"; the whole path when none occurs.
MAPCFG_EXPORT String sGetFileFromPath(String path);
// Everything before the last "." of the whole text (which may hold a folder).
MAPCFG_EXPORT String sGetNameFromFile(String file);
// The last "." and what follows; empty when there is no ".".
MAPCFG_EXPORT String sGetExtFromFile(String file);
// 1 when `path` names an existing directory, else 0.
MAPCFG_EXPORT int sIsDirExist(const char* path);
// 1 when `path` names an existing file that is not a directory, else 0.
MAPCFG_EXPORT int sIsFileExist(const char* path);
// Creates base\dir1\...\dirN (each level must be new; stops at the first null
// dir) and then, when `file` is not null, base\dirs\file empty (truncating
// it). Returns 1 on success, 0 at the first failure.
MAPCFG_EXPORT int sCreateFile(const char* base, const char* file, const char* dir1 = nullptr,
                              const char* dir2 = nullptr, const char* dir3 = nullptr,
                              const char* dir4 = nullptr);
// Counts the files (not directories) matching `pattern` (wildcards "*" and
// "?" in the last component) and appends their bare names to `out` when it is
// not null. Returns -1 when nothing at all matches.
MAPCFG_EXPORT int sGetFiles(const char* pattern, StringArray* out);

}  // namespace mapcfg

#endif  // MAPCFG_UTILS_H_
