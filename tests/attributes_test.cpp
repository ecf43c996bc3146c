// Drawing attribute records: defaults and comparisons (their archive layouts
// are golden streams in tests/data/archive/records.hex).
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <cstring>

using namespace mapcfg;

namespace {

TEST(Attributes, DefaultsTouchOnlyWhatTheyName) {
  LINE_PROP line;
  std::memset(&line, 'x', sizeof line);
  sInitLineProp(&line);
  EXPECT_EQ(line.color, 0u);
  EXPECT_EQ(line.width, 0.05f);
  EXPECT_EQ(line.style[0], '\0');
  EXPECT_EQ(line.style[1], 'x');  // only the first byte is cleared

  PATT_PROP patt;
  std::memset(&patt, 'x', sizeof patt);
  sInitPattProp(&patt, 1.5f);
  EXPECT_EQ(patt.foreColor, 0u);
  EXPECT_EQ(patt.backColor, 0xFFFFFFu);
  EXPECT_EQ(patt.ratio, 1.5f);
  EXPECT_EQ(patt.name[0], '\0');
  EXPECT_EQ(patt.name[1], 'x');

  FONT_PROP font;
  std::memset(&font, 'x', sizeof font);
  sInitFontProp(&font);
  EXPECT_EQ(sDescribe(font).size(), 14u);
  const FONT_PROP expected{0, 24.0f, 0.0f, 0.0f, 400, 134, {0, 0, 0, 0, 0, 0, 0}, {}};
  EXPECT_EQ(std::memcmp(&font, &expected, offsetof(FONT_PROP, faceName)), 0);
  EXPECT_EQ(String(font.faceName), sGetInfoStr(1251).substr(0, 31));
  EXPECT_FALSE(String(font.faceName).empty());
}

TEST(Attributes, ComparisonsUseTheToleranceAndIgnoreCase) {
  struct Case {
    LINE_PROP a, b;
    int equal;
  };
  const Case lines[] = {
      {{1, 1.0f, "Dash"}, {1, 1.0004f, "dASH"}, 1},
      // 1.0005 as a float is 1.00049996..., within 0.0005f of 1: equal.
      {{1, 1.0f, "Dash"}, {1, 1.0005f, "Dash"}, 1},
      {{1, 1.0f, "Dash"}, {1, 1.0006f, "Dash"}, 0},
      {{1, 1.0f, "Dash"}, {2, 1.0f, "Dash"}, 0},
      {{1, 1.0f, "Dash"}, {1, 1.0f, "Dot"}, 0},
  };
  for (const Case& c : lines) EXPECT_EQ(sCmpLineProp(&c.a, &c.b), c.equal) << c.b.width << c.b.style;

  const PATT_PROP p{1, 2, 1.0f, "Sand"}, q{1, 2, 1.0004f, "SAND"}, r{1, 3, 1.0f, "Sand"};
  EXPECT_EQ(sCmpPattProp(&p, &q), 1);
  EXPECT_EQ(sCmpPattProp(&p, &r), 0);

  FONT_PROP f{}, g{};
  sInitFontProp(&f);
  sCopyFontProp(&g, &f);
  EXPECT_EQ(sCmpFontProp(&f, &g), 1);
  g.fAngle = 0.0004f;
  EXPECT_EQ(sCmpFontProp(&f, &g), 1);
  g.flags[6] = 1;  // every style byte counts
  EXPECT_EQ(sCmpFontProp(&f, &g), 0);
}

}  // namespace
