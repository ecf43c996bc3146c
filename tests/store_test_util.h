// Helpers shared by the tests of the store's tables and records.
#ifndef MAPCFG_TESTS_STORE_TEST_UTIL_H_
#define MAPCFG_TESTS_STORE_TEST_UTIL_H_

#include <mapcfg/mapcfg.h>

#include <string>

namespace mapcfg_test {

// The fields as "name=value", one a line.
inline std::string Lines(const mapcfg::FieldTexts& fields) {
  std::string s;
  for (const mapcfg::FieldText& f : fields) s += f.name + "=" + f.value + "\n";
  return s;
}

}  // namespace mapcfg_test

#endif  // MAPCFG_TESTS_STORE_TEST_UTIL_H_
