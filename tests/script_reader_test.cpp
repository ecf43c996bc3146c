// The script reader: grammar, includes, lookups and the reader's limits.
#include <gtest/gtest.h>
#include <mapcfg/script.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "test_util.h"

using mapcfg::CCfgScript;
using mapcfg_test::TempDir;

namespace {

// Opens `text` written as one script file and returns the script.
struct Loaded {
  TempDir dir;
  CCfgScript script;
  explicit Loaded(const std::string& text) { script.Open(dir.Write("main.cfg", text).c_str(), 0); }
};

TEST(ScriptReader, BlocksKeysValuesAndQuotes) {
  Loaded s(
      "// well status catalogue\n"
      "config : \"Sample\"\n"
      "BEGIN\n"
      "A1 = \"First; 1; 0; 255\"\n"
      "A2 = Second; 2; _\n"
      "      255; 0\n"
      "Empty = \"\"\n"
      "Inner = \"a\"b\"\n"
      "Note = 12 // a remark\n"
      "NoEquals\n"
      "= lone value\n"
      "Tab\t= x\ty\t\n"
      "end\n");
  const CCfgScript& c = s.script;
  ASSERT_EQ(c.GetCfgCnt(), 1);
  EXPECT_EQ(c.GetCfgName(0), "Sample");
  EXPECT_EQ(c.GetKeyCnt("sample"), 8);
  EXPECT_EQ(c.GetKeyVal("SAMPLE", "a1"), "First; 1; 0; 255");
  EXPECT_EQ(c.GetKeyVal("Sample", "A2"), "Second; 2; 255; 0");
  EXPECT_EQ(c.GetKeyVal("Sample", "Empty"), "");
  EXPECT_EQ(c.GetKeyVal("Sample", "Inner"), "a\"b");
  EXPECT_EQ(c.GetKeyVal("Sample", "Note"), "12 // a remark");
  EXPECT_EQ(c.GetKeyName("Sample", 5), "NoEquals");
  EXPECT_EQ(c.GetKeyVal("Sample", 5), "");
  EXPECT_EQ(c.GetKeyName("Sample", 6), "");
  EXPECT_EQ(c.GetKeyVal("Sample", 6), "lone value");
  // Controls in a key become blanks and are trimmed; values keep theirs.
  EXPECT_EQ(c.GetKeyName("Sample", 7), "Tab");
  EXPECT_EQ(c.GetKeyVal("Sample", 7), "x\ty");
  // Out of range and missing.
  EXPECT_EQ(c.GetKeyVal("Sample", 8), "");
  EXPECT_EQ(c.GetKeyVal("Sample", -1), "");
  EXPECT_EQ(c.GetKeyCnt("Other"), -1);
  EXPECT_EQ(c.GetKeyVal("Other", "A1"), "");
  EXPECT_EQ(c.GetCfgName(1), "");
  EXPECT_EQ(c.GetCfgName(-1), "");
}

TEST(ScriptReader, LostBlocksAndHeaders) {
  Loaded s(
      "key = outside any block\n"
      "Config:\n"          // no name: ignored
      "Begin\n"            // then no header: ignored too
      "x = skipped\n"
      "End\n"
      "Config: A\n"
      "Config: B\n"        // swallowed: A's header wanted Begin
      "Begin\n"
      "b = 1\n"
      "End\n"
      "Config: C\n"
      "// comment rows are fine between header and Begin\n"
      "\n"
      "Begin\n"
      "c = 1\n"
      "End\n"
      "Config: D\n"
      "Begin\n"
      "d = 1\n");          // no End: D is lost
  const CCfgScript& c = s.script;
  ASSERT_EQ(c.GetCfgCnt(), 1);
  EXPECT_EQ(c.GetCfgName(0), "C");
  EXPECT_EQ(c.GetKeyCnt("A"), -1);
  EXPECT_EQ(c.GetKeyCnt("B"), -1);
  EXPECT_EQ(c.GetKeyCnt("D"), -1);
}

TEST(ScriptReader, DuplicatesAnswerFromTheFirst) {
  Loaded s(
      "Config: Dup\nBegin\nk = first\nK = second\nEnd\n"
      "Config: dup\nBegin\nk = other\nx = 1\ny = 2\nEnd\n");
  const CCfgScript& c = s.script;
  EXPECT_EQ(c.GetCfgCnt(), 2);
  EXPECT_EQ(c.GetKeyCnt("DUP"), 2);
  EXPECT_EQ(c.GetKeyVal("Dup", "k"), "first");
  EXPECT_EQ(c.GetKeyVal("Dup", 1), "second");
  EXPECT_EQ(c.GetCfgName(1), "dup");
  EXPECT_EQ(c.GetKeyCntAt(1), 3);
  EXPECT_EQ(c.GetKeyValAt(1, 0), "other");
}

TEST(ScriptReader, PhysicalLinesContinuationAndEndOfFile) {
  const std::string long_value(2990, 'v');
  Loaded s(
      "Config: L\r\nBegin\r\n"
      "k = " + long_value + "\r\n"     // 2994 bytes: 2047 + 947
      "a = 1 _\r\n"
      "\r\n"                           // an empty line ends a continuation
      "b = 2\r\n"
      "End\r\n"
      "Config: Last\nBegin\nz = 1\nEnd _");  // last row continued: lost
  const CCfgScript& c = s.script;
  ASSERT_EQ(c.GetCfgCnt(), 1);
  ASSERT_EQ(c.GetKeyCnt("L"), 4);
  EXPECT_EQ(c.GetKeyVal("L", "k"), std::string(2043, 'v'));
  EXPECT_EQ(c.GetKeyName("L", 1), std::string(947, 'v'));
  EXPECT_EQ(c.GetKeyVal("L", "a"), "1");  // the empty line ended it
  EXPECT_EQ(c.GetKeyVal("L", "b"), "2");
}

TEST(ScriptReader, TextModeBytes) {
  // CR LF reads as LF, so a 2046-byte line ending in "_" still fits one read
  // and continues; a NUL ends what is read of its piece; Ctrl-Z ends the
  // file; GBK bytes are ordinary.
  const std::string name = "\xB2\xE2\xCA\xD4";
  Loaded s("Config: " + name + "\r\nBegin\r\n" + std::string(2039, ' ') + "x = a _\r\nb\r\n" +
           std::string("n = a\0b\r\n", 9) + "End\r\n\x1A" + "Config: After\nBegin\nEnd\n");
  const CCfgScript& c = s.script;
  ASSERT_EQ(c.GetCfgCnt(), 1);
  EXPECT_EQ(c.GetKeyCnt(name.c_str()), 2);
  EXPECT_EQ(c.GetKeyVal(name.c_str(), "x"), "a b");
  EXPECT_EQ(c.GetKeyVal(name.c_str(), "n"), "a");
}

TEST(ScriptReader, IncludesResolveBesideTheIncludingFile) {
  TempDir dir;
  dir.Write("common.cfg", "Config: Common\nBegin\nc = 1\nEnd\n");
  dir.Write("main.cfg",
            "#Include <common.cfg>\n"
            "Config: Main\nBegin\n"
            "#include   < sub.cfg>>\n"   // blanks inside the brackets stay in the name
            "#Include <missing.cfg>\n"
            "#Include<common.cfg>\n"     // no blank: an ordinary row, here a key
            "m = 1\nEnd\n");
  dir.Write(" sub.cfg", "Config: Sub\nBegin\nEnd\n");
  CCfgScript c;
  c.Open(dir.File("main.cfg").c_str(), 0);
  ASSERT_EQ(c.GetCfgCnt(), 3);
  EXPECT_EQ(c.GetCfgName(0), "Common");
  EXPECT_EQ(c.GetCfgName(1), "Sub");  // completed while Main was still open
  EXPECT_EQ(c.GetCfgName(2), "Main");
  EXPECT_EQ(c.GetKeyName("Main", 0), "#Include<common.cfg>");
  // Append keeps what is there; a missing file adds nothing.
  c.Open(dir.File("common.cfg").c_str(), 1);
  c.Open(dir.File("none.cfg").c_str(), 1);
  EXPECT_EQ(c.GetCfgCnt(), 4);
  c.Open(dir.File("none.cfg").c_str(), 0);
  EXPECT_EQ(c.GetCfgCnt(), 0);
  EXPECT_EQ(c.GetKeyCnt("Common"), -1);
}

// Counts what the reader reports.
struct Recorder : mapcfg::ScriptEvents {
  int max_depth = 0, too_deep = 0, too_many = 0;
  void OnFileBegin(const std::string&, int depth) override { max_depth = std::max(max_depth, depth); }
  void OnInclude(const std::string&, int, const std::string&, bool, bool deep, bool many) override {
    too_deep += deep;
    too_many += many;
  }
};

TEST(ScriptReader, IncludeLimitsStopCyclesAndFanOut) {
  TempDir dir;
  // Includes itself: followed kMaxIncludeDepth levels deep, then stopped.
  dir.Write("self.cfg", "Config: S\nBegin\nEnd\n#Include <self.cfg>\n");
  CCfgScript c;
  Recorder r;
  c.Open(dir.File("self.cfg").c_str(), 0, &r);
  EXPECT_EQ(c.GetCfgCnt(), mapcfg::kMaxIncludeDepth);
  EXPECT_EQ(r.max_depth, mapcfg::kMaxIncludeDepth);
  EXPECT_EQ(r.too_deep, 1);
  // Includes itself twice: 2^64 reads without the limit on files in all.
  dir.Write("twice.cfg", "#Include <twice.cfg>\n#Include <twice.cfg>\nConfig: T\nBegin\nEnd\n");
  Recorder r2;
  c.Open(dir.File("twice.cfg").c_str(), 0, &r2);
  EXPECT_EQ(c.GetCfgCnt(), mapcfg::kMaxIncludedFiles + 1);
  EXPECT_GT(r2.too_many, 0);
}

// The facts the reader hands an observer about the bytes it reads, one line
// of text per event.
struct ByteLog : mapcfg::ScriptEvents {
  std::vector<std::string> log;
  void OnLine(const std::string&, int line, const std::string& text, bool nul) override {
    if (nul) log.push_back(std::to_string(line) + " nul " + text);
  }
  void OnCtrlZ(const std::string&, int line, bool text_after) override {
    log.push_back(std::to_string(line) + (text_after ? " ctrl-z, text after" : " ctrl-z"));
  }
  void OnJoin(const std::string&, int line, const std::string& piece, int next_line,
              const std::string& next_piece) override {
    log.push_back(std::to_string(line) + " join [" + piece + "] " + std::to_string(next_line) + " [" +
                  next_piece + "]");
  }
  void OnKey(const std::string&, int line, const std::string&, const std::string& key, bool has_equals) override {
    log.push_back(std::to_string(line) + " key [" + key + "]" + (has_equals ? "" : " without ="));
  }
};

TEST(ScriptReader, ObserverSeesNulsJoinsKeysAndTheEndMark) {
  const std::string blanks(3 * 4096, ' ');
  const struct {
    std::string text;
    std::vector<std::string> want;
  } kCases[] = {
      {std::string("Config: A\nBegin\nk = a\0b\nlone\n= v\nEnd\n", 37),
       {"3 nul k = a", "3 key [k]", "4 key [lone] without =", "5 key []"}},
      {"Config: A\nBegin\n  k = one _  \n// two _\n\n\nEnd\n",
       {"3 join [k = one _] 4 [// two _]", "4 join [// two _] 5 []", "3 key [k]"}},
      // The mark's line, whether text follows it, and text far past it: in
      // the same read, beyond the first buffer, beyond the look-ahead.
      {"Config: A\nBegin\nEnd\n\x1A\nConfig: B\n", {"4 ctrl-z, text after"}},
      {"Config: A\nBegin\nEnd\n  x\x1A\x1A \r\n\t\x1A", {"4 ctrl-z"}},
      {"\n\n\x1A" + blanks + "x", {"3 ctrl-z, text after"}},
      {blanks + "\n\n\x1A" + std::string(1024 * 1024, ' ') + "x", {"3 ctrl-z"}},
  };
  for (const auto& c : kCases) {
    TempDir dir;
    ByteLog log;
    CCfgScript script;
    script.Open(dir.Write("main.cfg", c.text).c_str(), 0, &log);
    EXPECT_EQ(log.log, c.want) << c.text.substr(0, 60);
  }
}

// An observer that throws ends the read; files close, completed blocks stay.
TEST(ScriptReader, ObserverMayEndTheRead) {
  struct Stop : mapcfg::ScriptEvents {
    void OnFileBegin(const std::string&, int depth) override {
      if (depth == 2) throw std::runtime_error("stop");
    }
  } stop;
  TempDir dir;
  dir.Write("inc.cfg", "Config: I\nBegin\nEnd\n");
  CCfgScript script;
  const std::string main = dir.Write("main.cfg", "Config: A\nBegin\nEnd\n#Include <inc.cfg>\nConfig: B\nBegin\nEnd\n");
  EXPECT_THROW(script.Open(main.c_str(), 0, &stop), std::runtime_error);
  ASSERT_EQ(script.GetCfgCnt(), 1);
  EXPECT_EQ(script.GetCfgName(0), "A");
}

}  // namespace
