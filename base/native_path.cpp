// The one place where library paths become platform paths.
//
// Scripts written on Windows name their files in GBK with "\" separators,
// while the same files on Linux usually carry UTF-8 names (and the other
// way round), so a path is tried in each of its spellings until one names
// something on disk.
#include "base/native_path.h"

#include <algorithm>
#include <system_error>

#include "base/code_pages.h"
#include "base/text_bytes.h"
#include "mapcfg/platform.h"

namespace mapcfg {
namespace detail {

namespace {

namespace fs = std::filesystem;

bool IsSep(char c) { return c == '\\' || c == '/'; }

// `path` cut at its separators. With `gbk` a GBK lead byte and the byte
// after it are one character, so the 0x5C of a character such as 0x9C 0x5C
// is no separator; without it every "\" is one, as in UTF-8. An empty part
// stands for a leading, doubled or trailing separator.
std::vector<std::string> Parts(const std::string& path, bool gbk) {
  std::vector<std::string> parts(1);
  for (size_t i = 0; i < path.size(); ++i) {
    if (IsSep(path[i])) {
      parts.emplace_back();
    } else if (gbk && IsGbkLead(path[i]) && i + 1 < path.size()) {
      parts.back() += path.substr(i++, 2);
    } else {
      parts.back() += path[i];
    }
  }
  return parts;
}

#if !defined(_WIN32)
bool HasHighByte(const std::string& s) {
  return std::any_of(s.begin(), s.end(), [](char c) { return static_cast<unsigned char>(c) > 0x7F; });
}

// Each part in the other encoding where it is in one: GBK parts (those that
// are not UTF-8) to UTF-8 with `to_utf8`, UTF-8 parts to GBK without.
std::vector<std::string> Recoded(std::vector<std::string> parts, bool to_utf8) {
  for (std::string& part : parts) {
    if (!HasHighByte(part) || IsUtf8(part) == to_utf8) continue;
    std::string other;
    if (to_utf8 ? GbkToUtf8(part, &other) : Utf8ToGbk(part, &other)) part = other;
  }
  return parts;
}
#endif

std::string Joined(const std::vector<std::string>& parts, char sep) {
  std::string out;
  for (size_t i = 0; i < parts.size(); ++i) {
    if (i) out += sep;
    out += parts[i];
  }
  return out;
}

void AddOnce(std::vector<fs::path>& spellings, fs::path p) {
  if (std::find(spellings.begin(), spellings.end(), p) == spellings.end()) spellings.push_back(std::move(p));
}

bool Exists(const fs::path& p) {
  std::error_code ec;
  return fs::exists(fs::symlink_status(p, ec));
}

}  // namespace

#if defined(_WIN32)
std::vector<fs::path> PathSpellings(const std::string& path) {
  // Windows takes both separators itself, except in names handed to
  // LoadLibrary: "/" becomes "\" outside GBK characters.
  const std::string given = Joined(Parts(path, true), '\\');
  std::vector<fs::path> spellings;
  std::wstring wide;
  for (unsigned code_page : {kCodePageAnsi, kCodePageGbk, kCodePageUtf8})
    if (ToWide(code_page == kCodePageUtf8 ? Joined(Parts(path, false), '\\') : given, code_page, &wide))
      AddOnce(spellings, fs::path(wide));
  if (spellings.empty()) {
    // Bytes valid in no code page: each as the character of the same number.
    for (char c : given) wide += static_cast<wchar_t>(static_cast<unsigned char>(c));
    spellings.emplace_back(wide);
  }
  return spellings;
}

std::string LibraryName(const fs::path& name) {
  std::string bytes;
  for (unsigned code_page : {kCodePageAnsi, kCodePageGbk, kCodePageUtf8})
    if (FromWide(name.native(), code_page, &bytes)) return bytes;
  return "?";
}
#else
std::vector<fs::path> PathSpellings(const std::string& path) {
  std::vector<fs::path> spellings;
  const std::vector<std::string> gbk_parts = Parts(path, true);
  AddOnce(spellings, Joined(gbk_parts, '/'));
  if (!HasHighByte(path)) return spellings;
  const std::vector<std::string> utf8_parts = Parts(path, false);
  AddOnce(spellings, Joined(utf8_parts, '/'));
  AddOnce(spellings, Joined(Recoded(gbk_parts, true), '/'));
  AddOnce(spellings, Joined(Recoded(utf8_parts, false), '/'));
  return spellings;
}

std::string LibraryName(const fs::path& name) { return name.native(); }
#endif

fs::path ResolvePath(const std::string& path) {
  const std::vector<fs::path> spellings = PathSpellings(path);
  if (spellings.size() == 1) return spellings.front();
  for (const fs::path& p : spellings)
    if (Exists(p)) return p;
  for (const fs::path& p : spellings)
    if (p.has_parent_path() && Exists(p.parent_path())) return p;
  return spellings.front();
}

}  // namespace detail

std::string sToNativePath(const std::string& path) {
#if defined(_WIN32)
  return path;
#else
  return detail::ResolvePath(path).native();
#endif
}

std::FILE* sOpenFile(const std::string& path, const char* mode) {
  const std::filesystem::path native = detail::ResolvePath(path);
  // fopen opens a directory for reading on POSIX; the library never wants that.
  std::error_code ec;
  if (std::filesystem::is_directory(native, ec)) return nullptr;
#if defined(_WIN32)
  std::wstring wide_mode;
  for (const char* m = mode; *m; ++m) wide_mode += static_cast<wchar_t>(*m);
  return _wfopen(native.c_str(), wide_mode.c_str());
#else
  return std::fopen(native.c_str(), mode);
#endif
}

}  // namespace mapcfg
