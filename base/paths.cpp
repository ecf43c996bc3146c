// Splitting paths and working with files and directories.
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/code_pages.h"
#include "base/native_path.h"
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

// Index of the last separator of a pattern that names a file, or npos: as
// LastSplit, except that in a GBK pattern the second byte of a character
// (0x5C in 0x9C 0x5C) is no separator. UTF-8 has no such bytes.
size_t LastPatternSplit(const String& pat) {
  if (detail::IsUtf8(pat)) return LastSplit(pat);
  size_t last = String::npos;
  for (size_t i = 0; i < pat.size(); i += detail::CharLen(pat, i))
    if (IsSep(pat[i]) || pat[i] == ':') last = i;
  return last;
}

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

namespace fs = std::filesystem;

// What `p` is: -1 nothing, 0 a file (or anything else that is not a
// folder), 1 a folder.
int Kind(const fs::path& p) {
  std::error_code ec;
  const fs::file_status st = fs::status(p, ec);
  if (!fs::exists(st)) return -1;
  return fs::is_directory(st) ? 1 : 0;
}

// The entries matching `pattern`, in the order of their upper-cased names.
// Only the last part of the pattern may hold wildcards; names are matched
// without regard to ASCII case on every system.
std::vector<Entry> Search(const char* pattern) {
  std::vector<Entry> found;
  if (!pattern || !*pattern) return found;
  const String pat = pattern;
  const size_t split = LastPatternSplit(pat);
  const String name = split == String::npos ? pat : pat.substr(split + 1);
  if (name.find_first_of("*?") == String::npos) {
    const int kind = name.empty() ? -1 : Kind(detail::ResolvePath(pat));
    if (kind >= 0) found.push_back({name, kind == 1});
    return found;
  }
  const String folder = split == String::npos ? String() : pat.substr(0, split + 1);
  const fs::path native = folder.empty() ? fs::path(".") : detail::ResolvePath(folder);
  std::error_code ec;
  for (fs::directory_iterator it(native, ec), end; !ec && it != end; it.increment(ec)) {
    const String entry = detail::LibraryName(it->path().filename());
    if (!Match(name.c_str(), entry.c_str())) continue;
    std::error_code kind_ec;
    const fs::file_status st = it->status(kind_ec);
    if (fs::exists(st)) found.push_back({entry, fs::is_directory(st)});
  }
  std::sort(found.begin(), found.end(), [](const Entry& a, const Entry& b) {
    return std::lexicographical_compare(a.name.begin(), a.name.end(), b.name.begin(), b.name.end(),
                                        [](char x, char y) {
                                          return static_cast<unsigned char>(UpperAscii(x)) <
                                                 static_cast<unsigned char>(UpperAscii(y));
                                        });
  });
  return found;
}

// Makes one new folder; false when it exists already or cannot be made.
bool MakeDir(const String& path) {
  std::error_code ec;
  return fs::create_directory(detail::ResolvePath(path), ec) && !ec;
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
