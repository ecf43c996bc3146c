// The few platform services mapcfg needs, behind one header.
//
// Library paths use "\" as separator and may start with a drive "X:".
// Every file the library opens goes through sToNativePath, so a host on a
// POSIX system may pass either "\" or "/" paths.
#ifndef MAPCFG_PLATFORM_H_
#define MAPCFG_PLATFORM_H_

#include <cstdio>
#include <string>

#include "mapcfg/export.h"

namespace mapcfg {

// Turns a library path into the platform's form: on POSIX every "\" becomes
// "/"; on Windows the path is returned unchanged.
MAPCFG_EXPORT std::string sToNativePath(const std::string& path);

// Opens a library path with std::fopen after sToNativePath. Returns null when
// the file cannot be opened or (on POSIX) names a directory. The caller owns
// the stream and closes it with std::fclose.
MAPCFG_EXPORT std::FILE* sOpenFile(const std::string& path, const char* mode);

}  // namespace mapcfg

#endif  // MAPCFG_PLATFORM_H_
