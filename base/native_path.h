// Library paths (GBK or UTF-8 bytes, "\" or "/" separators, perhaps a drive)
// as the file system's own paths.
#ifndef MAPCFG_BASE_NATIVE_PATH_H_
#define MAPCFG_BASE_NATIVE_PATH_H_

#include <filesystem>
#include <string>
#include <vector>

namespace mapcfg {
namespace detail {

// The ways `path` may be spelt on this system, most likely first, without
// repeats: the bytes as given (on POSIX "\" read as "/" wherever it is not
// the second byte of a GBK character), then the GBK parts as UTF-8 and the
// UTF-8 parts as GBK. On Windows the names are UTF-16: the bytes read in
// the ANSI code page, then as GBK, then as UTF-8. An ASCII path has one.
std::vector<std::filesystem::path> PathSpellings(const std::string& path);

// The spelling of `path` that names something on disk; else the first
// whose folder exists (a file about to be made); else the first.
std::filesystem::path ResolvePath(const std::string& path);

// A file or folder name from the file system as library bytes: as is on
// POSIX; on Windows in the ANSI code page, else GBK, else UTF-8, whichever
// holds it exactly.
std::string LibraryName(const std::filesystem::path& name);

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_BASE_NATIVE_PATH_H_
