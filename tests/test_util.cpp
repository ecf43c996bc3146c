#include "test_util.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace mapcfg_test {

TempDir::TempDir() {
  std::string tmpl = (std::filesystem::temp_directory_path() / "mapcfg-test-XXXXXX").string();
  if (!mkdtemp(tmpl.data())) std::abort();
  path_ = tmpl;
}

TempDir::~TempDir() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

std::string TempDir::Write(const std::string& name, const std::string& bytes) const {
  const std::string p = File(name);
  std::ofstream(p, std::ios::binary) << bytes;
  return p;
}

std::string ReadAll(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

}  // namespace mapcfg_test
