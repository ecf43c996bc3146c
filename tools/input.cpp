#include "input.h"

#include <mapcfg/mapcfg.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <random>

namespace mapcfg_tool {

namespace fs = std::filesystem;

namespace {

// The name of the copy of standard input in its folder.
const char kStdinName[] = "-";

bool StartsWith(const std::string& s, const std::string& prefix) { return s.compare(0, prefix.size(), prefix) == 0; }

}  // namespace

std::string ShownPath(const std::string& library_path) {
#if defined(_WIN32)
  // The same form as elsewhere, which Windows takes too: "\" becomes "/"
  // wherever it is not the second byte of a GBK character.
  std::string out = library_path;
  for (size_t i = 0; i < out.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(out[i]);
    if (c >= 0x81 && c <= 0xFE) ++i;
    else if (c == '\\') out[i] = '/';
  }
  return out;
#else
  return mapcfg::sToNativePath(library_path);
#endif
}

std::string WhyUnreadable(const std::string& native, Unreadable* kind) {
  Unreadable unused;
  if (!kind) kind = &unused;
  std::error_code ec;
  const fs::file_status st = fs::status(native, ec);
  *kind = Unreadable::kMissing;
  if (st.type() == fs::file_type::not_found) return std::strerror(ENOENT);
  *kind = Unreadable::kRefused;
  if (ec) return ec.message();
  *kind = Unreadable::kFolder;
  if (fs::is_directory(st)) return "it is a folder";
  *kind = Unreadable::kNotRegular;
  if (!fs::is_regular_file(st)) return "not a regular file (give \"-\" to read standard input)";
  *kind = Unreadable::kRefused;
  std::FILE* f = mapcfg::sOpenFile(native, "rb");
  if (!f) return std::strerror(errno);
  std::fclose(f);
  *kind = Unreadable::kNo;
  return "";
}

bool ReadStdin(std::string* bytes, std::string* why) {
  bytes->clear();
  char buf[65536];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, stdin)) > 0) {
    if (bytes->size() + n > kMaxStdinBytes) {
      *why = "standard input holds more than " + std::to_string(kMaxStdinBytes >> 20) + " MiB: not read";
      return false;
    }
    bytes->append(buf, n);
  }
  if (std::ferror(stdin)) {
    *why = std::string("cannot read standard input: ") + std::strerror(errno);
    return false;
  }
  return true;
}

ScriptInput::~ScriptInput() {
  if (temp_dir_.empty()) return;
  std::error_code ec;
  fs::remove_all(temp_dir_, ec);
}

bool ScriptInput::Open(const std::string& arg, std::string* why) {
  typed_ = arg == "-" ? "<stdin>" : arg;
  if (arg != "-") {
    *why = WhyUnreadable(arg);
    if (!why->empty()) return false;
    added_ = mapcfg::sGetDirFromPath(arg).empty() ? "./" : "";
    path_ = added_ + arg;
    return true;
  }
  std::string bytes;
  if (!ReadStdin(&bytes, why)) return false;
  std::error_code ec;
  const fs::path base = fs::temp_directory_path(ec);
  std::random_device random;
  for (int attempt = 0; attempt < 100 && temp_dir_.empty() && !ec; ++attempt) {
    const fs::path dir = base / ("mapcfg-" + std::to_string(random()));
    if (fs::create_directory(dir, ec)) temp_dir_ = dir.generic_string();
  }
  if (temp_dir_.empty()) {
    *why = "cannot make a temporary folder for standard input" + (ec ? ": " + ec.message() : "");
    return false;
  }
  path_ = temp_dir_ + "/" + kStdinName;
  std::FILE* f = std::fopen(path_.c_str(), "wb");
  const bool written = f && std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
  if (!f || std::fclose(f) != 0 || !written) {
    *why = "cannot copy standard input to " + path_ + ": " + std::strerror(errno);
    return false;
  }
  return true;
}

void StopUnlessRegular(const std::string& library_path) {
  std::error_code ec;
  const fs::file_status st = fs::status(ShownPath(library_path), ec);
  if (!ec && !fs::is_regular_file(st)) throw ReadStopped(library_path, "not a regular file");
}

std::string ScriptInput::Shown(const std::string& library_path) const {
  if (library_path == path_) return typed_;
  const std::string native = ShownPath(library_path);
  if (!temp_dir_.empty() && StartsWith(native, temp_dir_ + "/")) {
    const std::string name = native.substr(temp_dir_.size() + 1);
    return name == kStdinName ? "<stdin>" : name;
  }
  if (!added_.empty() && StartsWith(native, added_)) return native.substr(added_.size());
  return native;
}

}  // namespace mapcfg_tool
