// Splitting values into fields and the small text routines beside it.
#include <gtest/gtest.h>
#include <mapcfg/script.h>

#include <cstdio>

#include "test_util.h"

using namespace mapcfg;

TEST(Tokenise, GetSubStrWalksFields) {
  int pos = -7;
  EXPECT_EQ(sGetSubStr("  12 ; abc", ';', 0, &pos), "12");
  EXPECT_EQ(pos, 5);
  EXPECT_EQ(sGetSubStr("  12 ; abc", ';', 6, &pos), "abc");
  EXPECT_EQ(pos, 10);
  EXPECT_EQ(sGetSubStr("  12 ; abc", ';', 11, &pos), "");
  EXPECT_EQ(pos, 11);
  // Controls become blanks (and separate when sep is blank) only with ctrl.
  EXPECT_EQ(sGetSubStr("a\tb;c", ';', 0, &pos), "a b");
  EXPECT_EQ(sGetSubStr("a\tb c", ' ', 0, &pos), "a");
  EXPECT_EQ(pos, 1);
  EXPECT_EQ(sGetSubStr("\ta\tb c", ' ', 0, &pos, "", "", 0), "\ta\tb");
  // Bytes above 0x7F are ordinary, even as the second byte of a pair.
  EXPECT_EQ(sGetSubStr("\xB2\xE2;x", ';', 0, &pos), "\xB2\xE2");
  // Prefix and suffix go once, after trimming, and nothing is trimmed after.
  EXPECT_EQ(sGetSubStr("((a)) ", ';', 0, nullptr, "(", ")"), "(a)");
  EXPECT_EQ(sGetSubStr("( a ) ", ';', 0, nullptr, "(", ")"), " a ");
  EXPECT_EQ(sGetSubStr(String("x;  ;y"), ';', 2, &pos), "");
  EXPECT_EQ(pos, 4);
  EXPECT_EQ(sGetSubStr("   ", ';', 0, &pos), "");
  EXPECT_EQ(pos, 3);
}

TEST(Tokenise, GetStrArrayStopsAtTheFirstEmptyField) {
  StringArray out, out2;
  EXPECT_EQ(sGetStrArray("a;;b", out, ';'), 1);
  EXPECT_EQ(out, (StringArray{"a"}));
  out.clear();
  EXPECT_EQ(sGetStrArray("a,1,b,", out, ',', &out2), 1);
  EXPECT_EQ(out, (StringArray{"a", "b"}));
  EXPECT_EQ(out2, (StringArray{"1", ""}));
  out.clear();
  EXPECT_EQ(sGetStrArray(" x , y ,z", out, ','), 3);
  EXPECT_EQ(out, (StringArray{"x", "y", "z"}));
}

TEST(Tokenise, LayoutAndNames) {
  EXPECT_EQ(sPrefixLenStr("ab", 5), "   ab");
  EXPECT_EQ(sPrefixLenStr("abcdef", 3), "abcdef");
  EXPECT_EQ(sSuffixLenStr("ab", 4, '.'), "ab..");
  EXPECT_EQ(sFormatStr("Depth", "m", '.', 8), "Depth ... m");
  EXPECT_EQ(sFormatStr("LongName", "v", '.', 3), "LongName  v");
  EXPECT_EQ(sFormatString(" \t a  b\x01\xB2\xE2 \n", 0), "a  b \xB2\xE2");
  EXPECT_EQ(sFormatString(" \t a  b\x01\xB2\xE2 \n", 1), "ab\xB2\xE2");
  EXPECT_EQ(sGetFmtFldName("  Depth(m)_2 = 5"), "Depth(m)_2");
  EXPECT_EQ(sGetFmtFldName("_x"), "");
  EXPECT_EQ(sGetFmtFldName("\xB2\xE2" "1%"), "\xB2\xE2" "1%");
}

TEST(Tokenise, IsNumber) {
  const struct {
    const char* text;
    int with_minus, without_minus;
  } cases[] = {{"  -3.5 ", 1, 0}, {"-", 1, 0}, {"-.", 1, 0}, {".", 1, 1},  {"12", 1, 1},
               {"1.2.3", 0, 0},   {"+1", 0, 0}, {"1e5", 0, 0}, {"3-", 0, 0}, {"   ", 0, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(sIsNumber(c.text, 1), c.with_minus);
    EXPECT_EQ(sIsNumber(c.text, 0), c.without_minus);
  }
}

TEST(Tokenise, LineBreakForms) {
  String s = "a\\r\\nb\\nc";
  sNewLnStrToAct(s);
  EXPECT_EQ(s, "a\r\nb\r\nc");
  sNewLnActToStr(s);
  EXPECT_EQ(s, "a\\nb\\nc");
  s = "x\r\ny\nz";
  sNewLnActToStr(s);
  EXPECT_EQ(s, "x\\ny\\nz");
  s = "p\nq\r\n";
  sNewLnDrawToAct(s);
  EXPECT_EQ(s, "p\r\nq\r\r\n");
}

TEST(Tokenise, ReadLineFromFileSkipsBlankLines) {
  mapcfg_test::TempDir dir;
  const std::string path = dir.Write("lines.txt", "\n  \t \n \tfirst\tline  \r\n\n" + std::string(3000, 'x') + "\nlast");
  std::FILE* f = std::fopen(path.c_str(), "r");
  ASSERT_NE(f, nullptr);
  String line = "junk";
  EXPECT_EQ(sReadLineFromFile(f, line), 1);
  EXPECT_EQ(line, "first line");
  EXPECT_EQ(sReadLineFromFile(f, line), 1);
  EXPECT_EQ(line.size(), 2559u);  // a long line continues in the next read
  EXPECT_EQ(sReadLineFromFile(f, line), 1);
  EXPECT_EQ(line.size(), 441u);
  EXPECT_EQ(sReadLineFromFile(f, line), 1);
  EXPECT_EQ(line, "last");
  EXPECT_EQ(sReadLineFromFile(f, line), 0);
  EXPECT_EQ(line, "");
  std::fclose(f);
}
