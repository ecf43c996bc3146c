// The language byte, the configuration string and help tables, information
// texts, message boxes and version numbers.
#include <gtest/gtest.h>
#include <mapcfg/store.h>

#include <iconv.h>

#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using mapcfg::kCfgStrCount;
using mapcfg::kHelpStrCount;
using mapcfg::sGetCfgStr;
using mapcfg::sGetHelpStr;

// The tab-separated fields of every line of a file in tests/data, without
// the "#" comment lines.
std::vector<std::vector<std::string>> ReadRows(const std::string& name) {
  std::ifstream in(std::string(MAPCFG_TEST_DATA) + "/" + name, std::ios::binary);
  std::vector<std::vector<std::string>> rows;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> fields;
    size_t start = 0;
    for (size_t tab; (tab = line.find('\t', start)) != std::string::npos; start = tab + 1)
      fields.push_back(line.substr(start, tab - start));
    fields.push_back(line.substr(start));
    rows.push_back(fields);
  }
  return rows;
}

// GBK bytes as UTF-8, or "<not GBK>" when they are not valid GBK.
std::string GbkToUtf8(const std::string& gbk) {
  iconv_t cd = iconv_open("UTF-8", "GBK");
  if (cd == reinterpret_cast<iconv_t>(-1)) return "<no converter>";
  std::string in = gbk;
  std::string out(gbk.size() * 2 + 4, '\0');
  char* in_p = in.data();
  size_t in_left = in.size();
  char* out_p = out.data();
  size_t out_left = out.size();
  const size_t r = iconv(cd, &in_p, &in_left, &out_p, &out_left);
  iconv_close(cd);
  if (r == static_cast<size_t>(-1)) return "<not GBK>";
  out.resize(out.size() - out_left);
  return out;
}

bool EndsWith(const std::string& s, const std::string& tail) {
  return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

// Restores the language byte at the end of a test.
struct LangGuard {
  char saved = *mapcfg::sGetCfgLang();
  ~LangGuard() { *mapcfg::sGetCfgLang() = saved; }
};

TEST(StoreLanguage, EnglishTableMatchesTheDocumentedListing) {
  std::map<int, std::string> listed;
  for (const auto& row : ReadRows("cfg_strings_en.txt")) listed[std::stoi(row.at(0))] = row.at(1);
  ASSERT_EQ(listed.size(), 535u);
  for (int i = 0; i < kCfgStrCount; ++i) {
    const auto it = listed.find(i);
    // Entries the listing leaves out (534, 536 to 541) are empty.
    const std::string expected = it == listed.end() ? std::string() : it->second;
    for (char lang : {'\0', '\2', '\xff', 'E'}) EXPECT_EQ(GbkToUtf8(sGetCfgStr(lang, i)), expected) << "index " << i;
  }
  // The Chinese table is indexed alike.
  for (int i : {534, 536, 537, 538, 539, 540, 541}) EXPECT_EQ(sGetCfgStr(1, i), "") << "index " << i;
}

TEST(StoreLanguage, ChineseTableHoldsGbkTranslations) {
  const auto quoted = ReadRows("cfg_strings_zh_quoted.txt");
  ASSERT_GT(quoted.size(), 100u);
  for (const auto& row : quoted) {
    const int index = std::stoi(row.at(0));
    EXPECT_EQ(GbkToUtf8(sGetCfgStr(1, index)), row.at(1)) << "index " << index;
  }
  // Every Chinese entry is GBK, and block and key names (the entries up to
  // 133 are all names) are translated rather than copied.
  int translated = 0;
  for (int i = 0; i < kCfgStrCount; ++i) {
    const std::string zh = sGetCfgStr(1, i);
    EXPECT_NE(GbkToUtf8(zh), "<not GBK>") << "index " << i;
    if (i <= 133 && zh != sGetCfgStr(0, i)) ++translated;
  }
  EXPECT_EQ(translated, 134);
}

TEST(StoreLanguage, HelpRows) {
  ASSERT_EQ(kHelpStrCount, 36);
  const auto quoted = ReadRows("help_rows_quoted.txt");
  ASSERT_GT(quoted.size(), 40u);
  for (const auto& row : quoted) {
    const int index = std::stoi(row.at(0));
    const std::string shown = GbkToUtf8(sGetHelpStr(row.at(1) == "zh" ? 1 : 0, index));
    EXPECT_TRUE(EndsWith(shown, row.at(2))) << "row " << index << " " << row.at(1) << ": " << shown;
    if (row.size() > 3 && !row.at(3).empty()) {
      EXPECT_NE(shown.find(row.at(3)), std::string::npos) << index;
    }
  }
  for (char lang : {0, 1}) {
    // Two legends start on a line of their own.
    EXPECT_EQ(sGetHelpStr(lang, 31).compare(0, 2, "\r\n"), 0);
    EXPECT_EQ(sGetHelpStr(lang, 32).compare(0, 2, "\r\n"), 0);
    EXPECT_EQ(sGetHelpStr(lang, 35), "");
    for (int i = 0; i < kHelpStrCount - 1; ++i) EXPECT_FALSE(sGetHelpStr(lang, i).empty()) << i;
  }
  // The gradient polygon row is the Chinese one in both tables.
  EXPECT_EQ(sGetHelpStr(0, 34), sGetHelpStr(1, 34));
  EXPECT_NE(sGetHelpStr(0, 0), sGetHelpStr(1, 0));
  // Shape rows: the Chinese row carries the same command word.
  for (int i = 0; i <= 15; ++i) {
    const std::string en = sGetHelpStr(0, i);
    const std::string word = en.substr(0, en.find(' '));
    EXPECT_NE(sGetHelpStr(1, i).find(word + " = \""), std::string::npos) << i;
  }
}

TEST(StoreLanguage, LanguageByteChoosesTheTable) {
  LangGuard guard;
  EXPECT_EQ(*mapcfg::sGetCfgLang(), 1);  // the library starts in Chinese
  EXPECT_EQ(sGetCfgStr(0, 3), "ExpandDLL");
  EXPECT_EQ(sGetCfgStr(2, 3), "ExpandDLL");
  EXPECT_EQ(sGetCfgStr(1, 3), "\xc0\xa9\xd5\xb9\xbf\xe2");  // 扩展库
  // Out of range gives the empty String instead of reading past the table.
  for (int i : {-1, kCfgStrCount, 1 << 30}) {
    EXPECT_EQ(sGetCfgStr(0, i), "");
    EXPECT_EQ(sGetCfgStr(1, i), "");
  }
  for (int i : {-1, kHelpStrCount, -(1 << 30)}) EXPECT_EQ(sGetHelpStr(1, i), "");
  *mapcfg::sGetCfgLang() = 0;
  EXPECT_EQ(*mapcfg::sGetCfgLang(), 0);
}

TEST(StoreLanguage, VersionString) {
  EXPECT_EQ(mapcfg::sGetVersionStr(0x03012067), "3.1.20.67");
  EXPECT_EQ(mapcfg::sGetVersionStr(0x0A0B0C0D), "a.b.c.d");
  EXPECT_EQ(mapcfg::sGetVersionStr(0xFFFFFFFFu), "ff.ff.ff.ff");
}

std::vector<std::pair<char, std::string>> g_boxes;
int g_answer = 0;
int RecordBox(char kind, const char* text) {
  g_boxes.emplace_back(kind, text);
  return g_answer;
}

TEST(StoreLanguage, MessageBoxes) {
  // Without a handler nothing is shown: OK for errors and warnings, No for
  // questions.
  EXPECT_EQ(mapcfg::sMsgBox(0, "e"), 1);
  EXPECT_EQ(mapcfg::sMsgBox(1, "w"), 1);
  EXPECT_EQ(mapcfg::sMsgBox(2, "q"), 0);
  EXPECT_EQ(mapcfg::sMsgBox(3, "x"), 0);

  EXPECT_EQ(mapcfg::sSetMsgBoxHandler(RecordBox), nullptr);
  g_boxes.clear();
  g_answer = 0;
  EXPECT_EQ(mapcfg::sMsgBox(0, "stop"), 1);
  EXPECT_EQ(mapcfg::sMsgBox(1, "careful"), 1);
  EXPECT_EQ(mapcfg::sMsgBox(2, "sure?"), 0);
  g_answer = 6;  // any non-zero answer is Yes
  EXPECT_EQ(mapcfg::sMsgBox(2, nullptr), 1);
  EXPECT_EQ(mapcfg::sMsgBox(3, "never shown"), 0);
  EXPECT_EQ(mapcfg::sMsgBox(-1, "never shown"), 0);
  const std::vector<std::pair<char, std::string>> expected = {{0, "stop"}, {1, "careful"}, {2, "sure?"}, {2, ""}};
  EXPECT_EQ(g_boxes, expected);

  EXPECT_EQ(mapcfg::sSetMsgBoxHandler(nullptr), RecordBox);
  g_boxes.clear();
  EXPECT_EQ(mapcfg::sMsgBox(2, "q"), 0);
  EXPECT_TRUE(g_boxes.empty());
}

TEST(StoreLanguage, BuiltInInformationTexts) {
  // Before a resource library is loaded (each test runs in a fresh process
  // under ctest; a host that set a source would see its own texts).
  if (*mapcfg::sDllGetResStrPtr() != nullptr) GTEST_SKIP() << "a resource library is loaded";
  EXPECT_EQ(mapcfg::sGetInfoStr(1115), "m");
  EXPECT_EQ(mapcfg::sGetInfoStr(1117), "ft");
  EXPECT_FALSE(mapcfg::sGetInfoStr(838).empty());
  EXPECT_EQ(mapcfg::sGetInfoStr(1), "");
  EXPECT_EQ(mapcfg::sGetInfoStr(-5), "");
}

}  // namespace
