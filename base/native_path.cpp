// The one place where library paths become platform paths.
#include <sys/stat.h>

#include <algorithm>

#include "mapcfg/platform.h"

namespace mapcfg {

std::string sToNativePath(const std::string& path) {
#if defined(_WIN32)
  return path;
#else
  std::string out = path;
  std::replace(out.begin(), out.end(), '\\', '/');
  return out;
#endif
}

std::FILE* sOpenFile(const std::string& path, const char* mode) {
  const std::string native = sToNativePath(path);
#if !defined(_WIN32)
  // fopen opens a directory for reading on POSIX; the library never wants that.
  struct stat st;
  if (::stat(native.c_str(), &st) == 0 && S_ISDIR(st.st_mode)) return nullptr;
#endif
  return std::fopen(native.c_str(), mode);
}

}  // namespace mapcfg
