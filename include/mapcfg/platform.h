// The few platform services mapcfg needs, behind one header.
//
// Library paths use "\" as separator and may start with a drive "X:".
// Every file the library opens goes through the same conversion, so a host
// on a POSIX system may pass either "\" or "/" paths, in GBK or UTF-8.
#ifndef MAPCFG_PLATFORM_H_
#define MAPCFG_PLATFORM_H_

#include <cstdio>
#include <string>

#include "mapcfg/export.h"

namespace mapcfg {

// Turns a library path into the platform's form. On POSIX "\" becomes "/"
// wherever it is not the second byte of a GBK character, and a path that
// does not exist so but does with its GBK parts in UTF-8 (or its UTF-8 parts
// in GBK) is given in that spelling. On Windows the path is returned
// unchanged; the library's own file access tries the same spellings there.
MAPCFG_EXPORT std::string sToNativePath(const std::string& path);

// Opens a library path in the first of its spellings (see sToNativePath)
// that exists, or for a new file whose folder exists. Returns null when the
// file cannot be opened or names a directory. The caller owns the stream
// and closes it with std::fclose.
MAPCFG_EXPORT std::FILE* sOpenFile(const std::string& path, const char* mode);

}  // namespace mapcfg

#endif  // MAPCFG_PLATFORM_H_
