// Helpers shared by the archive tests.
#ifndef MAPCFG_TESTS_ARCHIVE_TEST_UTIL_H_
#define MAPCFG_TESTS_ARCHIVE_TEST_UTIL_H_

#include <mapcfg/archive.h>

#include <memory>
#include <string>

namespace mapcfg_test {

// The stream's bytes (ToData, which rewinds it).
inline std::string Bytes(mapcfg::CFFArchive& a) {
  uint32_t n = 0;
  std::unique_ptr<uint8_t[]> data = a.ToData(n);
  return std::string(reinterpret_cast<const char*>(data.get()), n);
}

// `a` holding exactly `bytes` (FromData), ready to read.
inline mapcfg::CFFArchive& Loaded(mapcfg::CFFArchive& a, const std::string& bytes) {
  a.FromData(bytes.data(), static_cast<uint32_t>(bytes.size()));
  return a;
}

}  // namespace mapcfg_test

#endif  // MAPCFG_TESTS_ARCHIVE_TEST_UTIL_H_
