// The configuration store: the start-up settings file, the language byte
// with the configuration string and help tables, version numbers, message
// boxes, information texts and resource libraries, extension and menu
// lists, the module cache and extra functions.
#include <gtest/gtest.h>
#include <mapcfg/store.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "store_test_util.h"
#include "test_util.h"

namespace {

using mapcfg::kCfgStrCount;
using mapcfg::kHelpStrCount;
using mapcfg::sGetCfgPlatePath;
using mapcfg::sGetCfgStr;
using mapcfg::sGetCfgTemplName;
using mapcfg::sGetHelpStr;
using mapcfg::sGetInfoStr;
using mapcfg::StringArray;
using mapcfg_test::GbkToUtf8;
using namespace std::string_literals;

using mapcfg_test::ReadRows;

TEST(StoreSettings, ReadRulesAndTheExactBytesWritten) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir home;
  std::filesystem::create_directory(home.File("Config"));
  *mapcfg::sGetHomeDirPtr() = home.path();
  const std::string file = home.File("Config/Vantrope.cfg");

  // {file, template name, plate path}, each file read with both names
  // preset to "old".
  const std::tuple<std::string, std::string, std::string> kFiles[] = {
      {"// settings of the suite\r\nCurrent_Cfg_Templ = Basin//old\r\ncurrent_cfg_plate=D:\\Plates\\A\r\n", "Basin",
       "D:\\Plates\\A"},
      // LF only, blanks and tabs around the value, a remark after it, the
      // last line of a key wins, other keys and remark lines are ignored.
      {"Current_Cfg_Templ = First\n//Current_Cfg_Plate = remarked\nOther = x\n"
       "CURRENT_CFG_TEMPL =\t  Second Templ \t// why\n",
       "Second Templ", "old"},
      // A value is cut at its first "/"; a key line without "=" empties it.
      {"Current_Cfg_Templ = a/b\r\nCurrent_Cfg_Plate\r\n", "a", ""},
      // Read as text on every platform, as scripts are: a NUL ends its line,
      // a Ctrl-Z byte ends the file, and a line longer than the 2048-byte
      // buffer goes on as a line of its own.
      {"Current_Cfg_Templ = T\0tail\r\n\x1a" "Current_Cfg_Plate = P\r\n"s, "T", "old"},
      {std::string(2047 - 4, ' ') + "abc Current_Cfg_Plate = split\r\n", "old", "split"},
      // Bytes that are not text at all change nothing and do not stop the read.
      {"\xff\xfe\x01\x02=\x80\r\r\r\nCurrent_Cfg_Plate = after\r\n", "old", "after"},
  };
  for (const auto& [bytes, templ, plate] : kFiles) {
    home.Write("Config/Vantrope.cfg", bytes);
    *sGetCfgTemplName() = *sGetCfgPlatePath() = "old";
    mapcfg::sReadConfig();
    EXPECT_EQ(*sGetCfgTemplName(), templ) << bytes;
    EXPECT_EQ(*sGetCfgPlatePath(), plate) << bytes;
  }

  // One blank each side of "=", CR LF; a longer file is truncated.
  *sGetCfgTemplName() = "Basin A";
  *sGetCfgPlatePath() = "D:\\Plates\\Main";
  mapcfg::sWriteConfig();
  EXPECT_EQ(mapcfg_test::ReadAll(file), "Current_Cfg_Templ = Basin A\r\nCurrent_Cfg_Plate = D:\\Plates\\Main\r\n");
  *sGetCfgTemplName() = *sGetCfgPlatePath() = "";
  mapcfg::sWriteConfig();
  EXPECT_EQ(mapcfg_test::ReadAll(file), "Current_Cfg_Templ = \r\nCurrent_Cfg_Plate = \r\n");

  // Without a Config folder the file can be neither written nor read, and
  // nothing changes.
  *mapcfg::sGetHomeDirPtr() = home.File("none");
  *sGetCfgTemplName() = "kept";
  mapcfg::sWriteConfig();
  mapcfg::sReadConfig();
  EXPECT_EQ(*sGetCfgTemplName(), "kept");
  EXPECT_FALSE(std::filesystem::exists(home.File("none")));
}

TEST(StoreLanguage, ConfigurationStringsMatchTheListing) {
  EXPECT_EQ(*mapcfg::sGetCfgLang(), 1);  // the library starts in Chinese
  // {index, English, Chinese where documented}; entries the listing leaves
  // out (534, 536 to 541) are empty in both tables, so every row of the
  // listing counts.
  std::map<int, std::vector<std::string>> listed;
  for (const auto& row : ReadRows("cfg_strings.txt")) listed[std::stoi(row.at(0))] = row;
  int translated = 0;
  for (int i = 0; i < kCfgStrCount; ++i) {
    const std::vector<std::string> row = listed.count(i) ? listed[i] : std::vector<std::string>{"", ""};
    for (char lang : {'\0', '\2', '\xff', 'E'}) EXPECT_EQ(GbkToUtf8(sGetCfgStr(lang, i)), row.at(1)) << i;
    const std::string zh = sGetCfgStr(1, i), zh_utf8 = GbkToUtf8(zh);
    EXPECT_EQ(zh_utf8, row.size() > 2 ? row[2] : zh_utf8) << i;  // when documented
    EXPECT_EQ(zh.empty(), row[1].empty()) << i;
    // Block and key names (the entries up to 133 are all names) are
    // translated rather than copied.
    if (i <= 133 && zh != sGetCfgStr(0, i)) ++translated;
  }
  EXPECT_EQ(translated, 134);
  // Out of range gives the empty String instead of reading past a table.
  for (int i : {-1, kCfgStrCount, 1 << 30}) EXPECT_EQ(sGetCfgStr(0, i) + sGetCfgStr(1, i), "") << i;
  for (int i : {-1, kHelpStrCount, -(1 << 30)}) EXPECT_EQ(sGetHelpStr(0, i) + sGetHelpStr(1, i), "") << i;
}

TEST(StoreLanguage, HelpRows) {
  // Each quoted row: the text it ends with and a text it contains.
  for (const auto& row : ReadRows("help_rows_quoted.txt")) {
    const std::string shown = GbkToUtf8(sGetHelpStr(row.at(1) == "zh" ? 1 : 0, std::stoi(row.at(0))));
    SCOPED_TRACE("row " + row[0] + " " + row[1] + ": " + shown);
    EXPECT_EQ(shown.substr(shown.size() - std::min(shown.size(), row.at(2).size())), row[2]);
    EXPECT_NE(shown.find(row.size() > 3 ? row[3] : ""), std::string::npos);
  }
  for (char lang : {0, 1}) {
    for (int i = 0; i < kHelpStrCount; ++i) EXPECT_EQ(sGetHelpStr(lang, i).empty(), i == 35) << i;
    // Two legends start on a line of their own.
    for (int i : {31, 32}) EXPECT_EQ(sGetHelpStr(lang, i).compare(0, 2, "\r\n"), 0) << i;
  }
}

TEST(StoreLanguage, VersionStringIsFourHexBytes) {
  EXPECT_EQ(mapcfg::sGetVersionStr(0x03012067), "3.1.20.67");
  EXPECT_EQ(mapcfg::sGetVersionStr(0x0A0B0C0D), "a.b.c.d");
  EXPECT_EQ(mapcfg::sGetVersionStr(0xFFFFFFFFu), "ff.ff.ff.ff");
}

using Boxes = std::vector<std::pair<char, std::string>>;
Boxes g_boxes;  // every box the handler was asked to show

// Records the box; answers 6 (Yes, as any non-zero answer) to "yes", else 0.
int RecordBox(char kind, const char* text) {
  g_boxes.emplace_back(kind, text);
  return std::string(text) == "yes" ? 6 : 0;
}

TEST(StoreLanguage, MessageBoxes) {
  mapcfg_test::StoreGuard guard;
  g_boxes.clear();
  // Without a handler nothing is shown: OK for errors and warnings, No for
  // questions, 0 for other kinds.
  for (char kind : {0, 1, 2, 3}) EXPECT_EQ(mapcfg::sMsgBox(kind, "yes"), kind < 2 ? 1 : 0) << int{kind};

  // A handler's answer counts for questions only; other kinds are never
  // shown. {kind, text, result}
  EXPECT_EQ(mapcfg::sSetMsgBoxHandler(RecordBox), nullptr);
  const std::tuple<char, const char*, int> kBoxes[] = {{0, "stop", 1}, {1, "careful", 1}, {2, "sure?", 0}, {2, "yes", 1},
                                                       {2, nullptr, 0}, {3, "yes", 0},    {-1, "yes", 0}};
  for (const auto& [kind, text, result] : kBoxes) EXPECT_EQ(mapcfg::sMsgBox(kind, text), result) << int{kind};
  EXPECT_EQ(g_boxes, (Boxes{{0, "stop"}, {1, "careful"}, {2, "sure?"}, {2, "yes"}, {2, ""}}));
  EXPECT_EQ(mapcfg::sSetMsgBoxHandler(nullptr), RecordBox);
}

TEST(StoreResources, BuiltInTextsThenEitherLibrary) {
  mapcfg_test::StoreGuard guard;
  // Before a resource library is loaded the English texts are built in.
  ASSERT_EQ(*mapcfg::sDllGetResStrPtr(), nullptr);
  std::map<int, std::string> builtin;
  for (int i : {539, 838, 839, 840, 1114, 1115, 1116, 1117, 1251}) builtin[i] = sGetInfoStr(i);
  EXPECT_EQ(builtin[1115], "m");
  EXPECT_EQ(builtin[1117], "ft");

  // Resource libraries are loaded from the home directory, by file name.
  const std::filesystem::path en(MAPCFG_RES_EN), zh(MAPCFG_RES_ZH);
  *mapcfg::sGetHomeDirPtr() = en.parent_path().string();
  const auto load = [](const std::string& file) {
    EXPECT_EQ(mapcfg::sLoadResoueceDLL(file.c_str()), "");
    return mapcfg::sGetResourceModule();
  };
  void* english = load(en.filename().string());
  EXPECT_NE(english, nullptr);
  for (const auto& [i, text] : builtin) EXPECT_TRUE(!text.empty() && sGetInfoStr(i) == text) << i;
  EXPECT_EQ(sGetInfoStr(12345), "");

  void* chinese = load(zh.filename().string());
  EXPECT_NE(chinese, english);
  EXPECT_EQ(sGetInfoStr(1115), "\xc3\xd7");  // 米
  // Every text is GBK Chinese, not the English one.
  for (const auto& [i, text] : builtin) EXPECT_GE(static_cast<unsigned char>(sGetInfoStr(i)[0]), 0x81) << i;
  // A library that cannot be loaded changes nothing.
  EXPECT_EQ(load("absent_res.so"), chinese);
  EXPECT_EQ(mapcfg::sLoadResoueceDLL(nullptr), "");
  EXPECT_EQ(sGetInfoStr(1115), "\xc3\xd7");
  // Loading the English one again reuses its module.
  EXPECT_EQ(load(en.filename().string()), english);
  EXPECT_EQ(sGetInfoStr(1115), "m");
}

TEST(StoreExtensions, LibraryAndMenuBlocksAppendInEitherLanguage) {
  mapcfg_test::StoreGuard guard;
  mapcfg::CCfgScript script, empty;
  script.Open(MAPCFG_TEST_DATA "/extensions.cfg", 0);
  for (char lang : {0, 1}) {
    *mapcfg::sGetCfgLang() = lang;
    mapcfg::sCfgReadLibDlls(script);
    mapcfg::sCfgReadMenuFuns(script);
  }
  mapcfg::sCfgReadMenuFuns(script);  // in Chinese again
  mapcfg::sCfgReadLibDlls(empty);
  // Reading appends: a script without the blocks adds nothing, the Chinese
  // blocks go after the English ones, and a block read twice is listed twice.
  StringArray* lists[] = {mapcfg::sCfgGetLibNamesPtr(), mapcfg::sCfgGetLibDllsPtr(), mapcfg::sCfgGetMenuNamesPtr(),
                          mapcfg::sCfgGetMenuFunsPtr()};
  EXPECT_EQ(*lists[0], (StringArray{"Well tools", "Maps", "Zh tool"}));
  EXPECT_EQ(*lists[1], (StringArray{"WellTools.dll", "Maps.dll; extra", "Zh.dll"}));
  EXPECT_EQ(*lists[2], (StringArray{"Editor", "Zh menu", "Zh menu"}));
  EXPECT_EQ(*lists[3], (StringArray{"Edit.exe", "Zh.exe", "Zh.exe"}));
}

std::string FunA(void*) { return "A"; }
std::string FunB(void*) { return "B"; }

TEST(StoreExtensions, ExtraFunctionsOrderedWithoutCase) {
  // Only this test registers extra functions, and nothing unregisters them.
  if (mapcfg::sGetExtraFunCount() != 0) GTEST_SKIP() << "registered by an earlier run of this test in this process";
  // {name, function, insertion index or -1 for a name taken in any case}.
  // Names fold to lower case before comparing, so "_x" sorts before "a".
  const std::tuple<const char*, mapcfg::ExtraFun, int> kAdds[] = {
      {"b", FunB, 0},     {"a", FunA, 0},  {"c", FunA, 2},       {"Calc", FunA, 3},
      {"calc", FunB, -1}, {"B", FunA, -1}, {nullptr, FunA, -1}, {"_x", FunA, 0}};
  for (const auto& [name, fun, at] : kAdds) EXPECT_EQ(mapcfg::sAddExtraFun(name, fun), at) << (name ? name : "null");
  StringArray names;
  for (int i = 0; i < mapcfg::sGetExtraFunCount(); ++i) names.push_back(mapcfg::sGetExtraFunName(i));
  EXPECT_EQ(names, (StringArray{"_x", "a", "b", "c", "Calc"}));
  for (int i : {-1, 5}) EXPECT_THROW(mapcfg::sGetExtraFunName(i), std::out_of_range) << i;
  EXPECT_EQ(mapcfg::sGetExtraFunAddr("CALC"), &FunA);  // the first registration stays
  EXPECT_EQ(mapcfg::sGetExtraFunAddr("B"), &FunB);
  EXPECT_EQ(mapcfg::sGetExtraFunAddr("d"), nullptr);
  EXPECT_EQ(mapcfg::sGetExtraFunAddr(nullptr), nullptr);
}

TEST(StoreExtensions, ModulesLoadOnceAndFailuresAreRemembered) {
  mapcfg_test::TempDir dir;
  const std::string later = dir.File("later.so"), path = dir.File("res_copy.so");
  EXPECT_EQ(mapcfg::sLoadDll(later.c_str()), nullptr);
  // The library appears afterwards, but the failure is kept for the process.
  std::filesystem::copy_file(MAPCFG_RES_EN, later);
  EXPECT_EQ(mapcfg::sLoadDll(later.c_str()), nullptr);

  std::filesystem::copy_file(MAPCFG_RES_EN, path);
  void* module = mapcfg::sLoadDll(path.c_str());
  EXPECT_NE(module, nullptr);
  // The cache compares names without case, even on a file system that does
  // not, so the same name in other case gives the same module.
  std::string upper = path;
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  EXPECT_EQ(mapcfg::sLoadDll(upper.c_str()), module);
  EXPECT_EQ(mapcfg::sLoadDll(nullptr), nullptr);
}

}  // namespace
