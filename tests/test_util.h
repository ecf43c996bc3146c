// Helpers shared by the tests.
#ifndef MAPCFG_TESTS_TEST_UTIL_H_
#define MAPCFG_TESTS_TEST_UTIL_H_

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

// The whole content of a file, or "" when it cannot be read.
std::string ReadAll(const std::string& path);

}  // namespace mapcfg_test

#endif  // MAPCFG_TESTS_TEST_UTIL_H_
