// Helpers shared by the tests.
#ifndef MAPCFG_TESTS_TEST_UTIL_H_
#define MAPCFG_TESTS_TEST_UTIL_H_

#include <memory>
#include <string>

namespace mapcfg_test {

// A fresh scratch directory, removed with everything in it on destruction.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const std::string& path() const { return path_; }
  // path() + "/" + name
  std::string File(const std::string& name) const { return path_ + "/" + name; }
  // Writes `bytes` to File(name) and returns that path.
  std::string Write(const std::string& name, const std::string& bytes) const;

 private:
  std::string path_;
};

// Saves the process-wide state that tests change (language byte,
// directories, settings names, information-text source, message-box
// handler, extension and menu lists) and puts it back when it goes out of
// scope, whatever assertion failed; it also empties every table
// (sCfgClearPlate), so that a test leaves the store as it found it.
class StoreGuard {
 public:
  StoreGuard();
  ~StoreGuard();
  StoreGuard(const StoreGuard&) = delete;
  StoreGuard& operator=(const StoreGuard&) = delete;

 private:
  struct Saved;
  std::unique_ptr<Saved> saved_;
};

// The whole content of a file, or "" when it cannot be read.
std::string ReadAll(const std::string& path);

// `text` converted from encoding `from` to `to` ("GBK" or "UTF-8"), or
// "<not FROM>" when it is not valid in `from` or cannot be converted.
std::string Iconv(const char* to, const char* from, std::string text);
inline std::string GbkToUtf8(const std::string& gbk) { return Iconv("UTF-8", "GBK", gbk); }

// `s` with ASCII letters in lower case, as the library compares names.
inline std::string Folded(std::string s) {
  for (char& c : s) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  return s;
}

// Whether configuration string `key` can stand as a key row of a script
// ("key = value"): not empty, nothing the reader takes for other syntax.
inline bool CanBeKey(const std::string& key) {
  return !key.empty() && key.find_first_of("=\r\n/[#:") == std::string::npos && Folded(key) != "begin" &&
         Folded(key) != "end";
}

}  // namespace mapcfg_test

#endif  // MAPCFG_TESTS_TEST_UTIL_H_
