// Every reader of rows (scripts, included files, the settings file) reads the
// same rows whether or not the file's last line has a line end, at every size
// around the line source's buffer steps.
#include <gtest/gtest.h>
#include <mapcfg/script.h>
#include <mapcfg/store.h>

#include <filesystem>
#include <string>
#include <vector>

#include "test_util.h"

namespace {

using mapcfg_test::TempDir;

// Everything the reader reports that carries text, then every key and value.
struct RowRecorder : mapcfg::ScriptEvents {
  std::vector<std::string> rows;
  void OnStrayRow(const std::string&, int line, const std::string& row) override {
    rows.push_back(std::to_string(line) + " stray " + row);
  }
  void OnInclude(const std::string&, int line, const std::string& target, bool, bool, bool) override {
    rows.push_back(std::to_string(line) + " include " + target);
  }
  void OnRowLostAtEnd(const std::string&, int line) override { rows.push_back(std::to_string(line) + " lost"); }
};

std::vector<std::string> ReadScript(const std::string& path) {
  mapcfg::CCfgScript script;
  RowRecorder rec;
  script.Open(path.c_str(), 0, &rec);
  for (int b = 0; b < script.GetCfgCnt(); ++b)
    for (int k = 0; k < script.GetKeyCntAt(b); ++k)
      rec.rows.push_back(script.GetKeyNameAt(b, k) + "=" + script.GetKeyValAt(b, k));
  return rec.rows;
}

// Exactly `size` bytes: `filler(i)` rows (each ending in `eol`), then a row
// of blanks that pads the size, then `last` with no line end; "" when `last`
// does not leave room for that.
template <typename Filler>
std::string Sized(size_t size, const std::string& head, Filler filler, const std::string& pad_row,
                  const std::string& last, const std::string& eol) {
  std::string s = head;
  for (int i = 0; s.size() + 100 + last.size() < size; ++i) s += filler(i) + eol;
  const size_t used = s.size() + pad_row.size() + eol.size() + last.size();
  if (used > size) return "";
  return s + std::string(size - used, ' ') + pad_row + eol + last;
}

TEST(LastLine, SameRowsWithAndWithoutTheFinalLineEnd) {
  mapcfg_test::StoreGuard guard;
  TempDir dir;
  std::filesystem::create_directory(dir.File("Config"));
  *mapcfg::sGetHomeDirPtr() = dir.path();

  // Small files, and sizes around the first buffer (4 KiB), its growth
  // steps and its largest size.
  std::vector<size_t> sizes = {40, 300, 2100};
  for (size_t base : {4096u, 8192u, 12288u, 16384u, 262144u, 524288u}) {
    const int spread = base < 65536 ? 3 : 1;
    for (int d = -spread; d <= spread; ++d) sizes.push_back(base + d);
  }
  // Last lines shorter and longer than what comes before them in a buffer,
  // and around the 2047-byte physical piece.
  const size_t kLast[] = {3, 150, 2046, 2047, 2048, 4500};
  const auto keys = [](int i) { return "k" + std::to_string(i) + " = " + std::string(40 + i % 50, 'a' + i % 26); };
  const auto remarks = [](int i) { return "// remark " + std::string(30 + i % 70, 'r'); };

  for (const std::string eol : {"\n", "\r\n"}) {
    for (size_t size : sizes) {
      for (size_t last_len : kLast) {
        const std::string at = std::to_string(size) + " bytes, last line " + std::to_string(last_len) +
                               (eol.size() == 2 ? ", CR LF" : ", LF");
        // A script whose last line is a stray row or, when it fits one
        // piece, an include.
        const bool include = last_len >= 20 && last_len <= 2047 && size % 2;
        const std::string name = include ? std::string(last_len - 11, 'n') : "";
        const std::string last = include ? "#Include <" + name + ">" : std::string(last_len, 'x');
        const std::string text = Sized(size, "Config: A" + eol + "Begin" + eol, keys, "End", last, eol);
        if (!text.empty()) {
          ASSERT_EQ(text.size(), size) << at;
          const auto with = ReadScript(dir.Write("with.cfg", text + eol));
          const auto without = ReadScript(dir.Write("without.cfg", text));
          EXPECT_TRUE(with == without) << at;
          // The last line itself: the include's target, or the stray row
          // in pieces of at most 2047 bytes.
          std::string seen;
          for (const auto& row : without) {
            const size_t cut = row.find(include ? " include " : " stray ");
            if (cut != std::string::npos) seen += row.substr(row.find(' ', cut + 1) + 1);
          }
          const std::string expected = include ? dir.path() + "\\" + name : last;
          EXPECT_EQ(seen, expected) << at;
        }

        // The settings file whose last line names the plate.
        const std::string plate = "D:\\Plates\\" + std::string(last_len > 40 ? last_len - 40 : 1, 'p');
        const std::string setting = "Current_Cfg_Plate = " + plate;
        const std::string settings = Sized(size, "", remarks, "//", setting, eol);
        if (settings.empty() || setting.size() > 2047) continue;
        for (const std::string& end : {eol, std::string()}) {
          dir.Write("Config/Vantrope.cfg", settings + end);
          *mapcfg::sGetCfgPlatePath() = "";
          mapcfg::sReadConfig();
          EXPECT_EQ(*mapcfg::sGetCfgPlatePath(), plate) << at << (end.empty() ? ", no final line end" : "");
        }
      }
    }
  }
}

}  // namespace
