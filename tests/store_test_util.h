// Helpers shared by the tests of the store's tables and records.
#ifndef MAPCFG_TESTS_STORE_TEST_UTIL_H_
#define MAPCFG_TESTS_STORE_TEST_UTIL_H_

#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace mapcfg_test {

// The fields as "name=value", one a line; the fields that `name_only` picks
// (when given) as their names alone.
inline std::string Lines(const mapcfg::FieldTexts& fields, bool (*name_only)(const mapcfg::String&) = nullptr) {
  std::string s;
  for (const mapcfg::FieldText& f : fields) s += f.name + (name_only && name_only(f.name) ? "" : "=" + f.value) + "\n";
  return s;
}

// The values of a record's fields (as the describer gives them) joined by
// ",".
template <class R>
std::string Values(const R& record) {
  std::string s;
  for (const mapcfg::FieldText& f : mapcfg::sDescribe(record)) s += "," + f.value;
  return s.erase(0, 1);
}

// Every table, and the extension and menu lists, which outlive a plate.
inline void EmptyStore() {
  mapcfg::sCfgClearPlate();
  for (mapcfg::StringArray* list : {mapcfg::sCfgGetLibNamesPtr(), mapcfg::sCfgGetLibDllsPtr(),
                                    mapcfg::sCfgGetMenuNamesPtr(), mapcfg::sCfgGetMenuFunsPtr()})
    list->clear();
}

// The tab-separated fields of the lines of a file in tests/data, without
// empty lines and "#" comment lines (a trailing empty field is dropped).
inline std::vector<std::vector<std::string>> ReadRows(const std::string& name) {
  std::ifstream in(std::string(MAPCFG_TEST_DATA) + "/" + name, std::ios::binary);
  EXPECT_TRUE(in.is_open()) << name;
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    rows.emplace_back();
    for (std::string field; std::getline(fields, field, '\t');) rows.back().push_back(field);
  }
  return rows;
}

}  // namespace mapcfg_test

#endif  // MAPCFG_TESTS_STORE_TEST_UTIL_H_
