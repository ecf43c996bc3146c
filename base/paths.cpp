// Splitting paths and working with files and directories.
#include <sys/stat.h>
#include <sys/types.h>

#include <algorithm>
#include <cstring>

#if defined(_WIN32)
#include <direct.h>
#include <io.h>
#else
#include <dirent.h>
#endif

#include "base/text_bytes.h"
#include "mapcfg/utils.h"

namespace mapcfg {

namespace {

bool IsSep(char c) { return c == '\\' || c == '/'; }

// Index of the last "\", "/" or ":", or npos.
size_t LastSplit(const String& path) {
  for (size_t i = path.size(); i-- > 0;)
    if (IsSep(path[i]) || path[i] == ':') return i;
  return String::npos;
}

using detail::UpperAscii;

// Wildcard match of a file name: "*" any run, "?" any one byte; ASCII case is
// ignored, as the suite's file system does.
bool Match(const char* pat, const char* name) {
  const char* star = nullptr;
  const char* resume = nullptr;
  while (*name) {
    if (*pat == '*') {
      star = pat++;
      resume = name;
    } else if (*pat == '?' || (*pat && UpperAscii(*pat) == UpperAscii(*name))) {
      ++pat;
      ++name;
    } else if (star) {
      pat = star + 1;
      name = ++resume;
    } else {
      return false;
    }
  }
  while (*pat == '*') ++pat;
  return *pat == '\0';
}

struct Entry {
  String name;
  bool dir;
};

bool StatPath(const String& path, bool* dir) {
  struct stat st;
  if (::stat(sToNativePath(path).c_str(), &st) != 0) return false;
  *dir = (st.st_mode & S_IFMT) == S_IFDIR;
  return true;
}

// The entries matching `pattern`, in the order of their upper-cased names.
std::vector<Entry> Search(const char* pattern) {
  std::vector<Entry> found;
  if (!pattern || !*pattern) return found;
  const String pat = pattern;
  const size_t split = LastSplit(pat);
  const String name = split == String::npos ? pat : pat.substr(split + 1);
  if (name.find_first_of("*?") == String::npos) {
    bool dir = false;
    if (!name.empty() && StatPath(pat, &dir)) found.push_back({name, dir});
    return found;
  }
  String folder = split == String::npos ? String() : pat.substr(0, split + 1);
#if defined(_WIN32)
  intptr_t h;
  _finddata_t fd;
  if ((h = _findfirst(pattern, &fd)) == -1) return found;
  do {
    if (std::strcmp(fd.name, ".") && std::strcmp(fd.name, ".."))
      found.push_back({fd.name, (fd.attrib & _A_SUBDIR) != 0});
  } while (_findnext(h, &fd) == 0);
  _findclose(h);
#else
  const String native = sToNativePath(folder.empty() ? String(".") : folder);
  DIR* d = ::opendir(native.c_str());
  if (!d) return found;
  while (const dirent* e = ::readdir(d)) {
    if (!std::strcmp(e->d_name, ".") || !std::strcmp(e->d_name, "..")) continue;
    if (!Match(name.c_str(), e->d_name)) continue;
    bool dir = false;
    if (StatPath(folder + e->d_name, &dir)) found.push_back({e->d_name, dir});
  }
  ::closedir(d);
#endif
  std::sort(found.begin(), found.end(), [](const Entry& a, const Entry& b) {
    return std::lexicographical_compare(a.name.begin(), a.name.end(), b.name.begin(), b.name.end(),
                                        [](char x, char y) {
                                          return static_cast<unsigned char>(UpperAscii(x)) <
                                                 static_cast<unsigned char>(UpperAscii(y));
                                        });
  });
  return found;
}

bool MakeDir(const String& path) {
#if defined(_WIN32)
  return _mkdir(path.c_str()) == 0;
#else
  return ::mkdir(sToNativePath(path).c_str(), 0777) == 0;
#endif
}

}  // namespace

String sGetDirFromPath(String path) {
  const size_t i = LastSplit(path);
  if (i == String::npos) return String();
  return path[i] == ':' ? path.substr(0, i + 1) : path.substr(0, i);
}

String sGetFileFromPath(String path) {
  const size_t i = LastSplit(path);
  return i == String::npos ? path : path.substr(i + 1);
}

String sGetNameFromFile(String file) {
  const size_t i = file.rfind('.');
  return i == String::npos ? file : file.substr(0, i);
}

String sGetExtFromFile(String file) {
  const size_t i = file.rfind('.');
  return i == String::npos ? String() : file.substr(i);
}

int sIsDirExist(const char* path) {
  const std::vector<Entry> found = Search(path);
  return !found.empty() && found.front().dir ? 1 : 0;
}

int sIsFileExist(const char* path) {
  const std::vector<Entry> found = Search(path);
  return !found.empty() && !found.front().dir ? 1 : 0;
}

int sCreateFile(const char* base, const char* file, const char* dir1, const char* dir2, const char* dir3,
                const char* dir4) {
  String path = base ? base : "";
  for (const char* dir : {dir1, dir2, dir3, dir4}) {
    if (!dir) break;
    path += '\\';
    path += dir;
    if (!MakeDir(path)) return 0;
  }
  if (file) {
    path += '\\';
    path += file;
    std::FILE* f = sOpenFile(path, "wb");
    if (!f) return 0;
    std::fclose(f);
  }
  return 1;
}

int sGetFiles(const char* pattern, StringArray* out) {
  const std::vector<Entry> found = Search(pattern);
  if (found.empty()) return -1;
  int count = 0;
  for (const Entry& e : found) {
    if (e.dir) continue;
    if (out) out->push_back(e.name);
    ++count;
  }
  return count;
}

}  // namespace mapcfg
