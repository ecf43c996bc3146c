// The well location map's block: production and test display and the map's
// parameters read from scripts in both languages. The records' archive
// layouts are golden streams in tests/data/archive/records.hex.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <string>
#include <utility>
#include <vector>

#include "store_test_util.h"
#include "test_util.h"

using namespace mapcfg;

namespace {

// Rows of the configuration string table.
enum Row {
  kSymbolRadius = 21, kNameHeight = 22, kWallsDistance = 24, kContourPos = 25, kScanRadius = 26,
  kDepthBase = 27, kStraBase = 28, kBaseDepth = 29, kDisplayMode = 30,
  kCorreDate = 286, kStatMode = 287, kProdShape = 289, kCorreMode = 291, kProdLineName = 292,
  kProdLineWidth = 293, kProdLineColor = 294, kOilName = 295, kOilColor = 296, kInpourName = 299,
  kProdFontName = 301, kProdFontHeight = 302, kRatiusMode = 305, kTestLineWidth = 307, kTestWaterName = 311,
  kTestWaterColor = 312, kTestFontName = 313, kTestFontHeight = 314, kDefaultFace = 315, kWellLocationMap = 338,
};
using Keys = std::vector<std::pair<int, std::string>>;

// Opens the block "Well Location Map" of language `lang` holding `keys` and
// reads all four records from it under language `read_lang`.
void ReadBlock(char lang, const Keys& keys, char read_lang) {
  std::string text = "Config: " + sGetCfgStr(lang, kWellLocationMap) + "\nBegin\n";
  for (const auto& [row, value] : keys) text += sGetCfgStr(lang, row) + " = " + value + "\n";
  mapcfg_test::TempDir dir;
  CCfgScript script;
  script.Open(dir.Write("jwt.cfg", text + "End\n").c_str(), 0);
  *sGetCfgLang() = read_lang;
  sCfgReadOldProdProp(script, sCfgGetOldProdPropPtr(), 1.5f);
  sCfgReadOldTestProp(script, sCfgGetOldTestPropPtr(), 2.0f);
  sCfgGetJWTAutoParmPtr()->Text = "old";
  sCfgReadJWTAutoParm(script, sCfgGetJWTAutoParmPtr());
  sCfgReadJWTMapProp(script, sCfgGetJWTMapPropPtr());
}

using mapcfg_test::Values;

// `want` with "%" replaced by the label font's fields after its colour
// (those of sInitFontProp) and "@" by `face`.
std::string Expand(std::string want, const std::string& face) {
  for (size_t i; (i = want.find('%')) != std::string::npos;) want.replace(i, 1, ",24,0,0,400,134,0,0,0,0,0,0,0");
  for (size_t i; (i = want.find('@')) != std::string::npos;) want.replace(i, 1, face);
  return want;
}

TEST(WellLocationMap, DisplayAndMapParametersFromTheBlockInItsLanguage) {
  mapcfg_test::StoreGuard guard;
  const std::string long_name(50, 'P'), long_face(40, 'F');
  struct Case {
    Keys keys;
    const char *prod, *test, *autoparm, *map;  // "@": the face of the language
  };
  const Case defaults = {
      {},
      "1,1,0,0,0,2,0x000000,0.5,,0x000000,0x000000,1.5,,0x000000,0x000000,1.5,,0x000000,0x000000,1.5,,0x000000"
      "%,@",
      "0,0,2,0x000000,0.5,,0x000000,0x000000,2,,0x000000,0x000000,2,,0x000000%,@",
      "3,,0,0,,1,1",
      "25,35,50,0.5,50"};
  const Case cases[] = {
      defaults,
      {{{kCorreDate, "0"}, {kStatMode, "258"}, {kProdShape, "abc"}, {kCorreMode, " 7 "}, {kProdLineName, "Dash"},
        {kProdLineWidth, "0"}, {kProdLineColor, "ff"}, {kOilName, long_name}, {kOilColor, "00ff00"},
        {kInpourName, "Inj"}, {kProdFontName, "Courier"}, {kProdFontHeight, "30"}, {kRatiusMode, "1"},
        {kTestLineWidth, "0.25"}, {kTestWaterName, "W"}, {kTestWaterColor, "0x10"}, {kTestFontName, long_face},
        {kTestFontHeight, ""}},
       // The font height key goes into the font's colour (hexadecimal).
       "0,2,0,0,0,7,0x0000FF,0,Dash,0x000000,0x00FF00,1.5,PPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPP,0x000000,0x000000,"
       "1.5,,0x000000,0x000000,1.5,Inj,0x000030%,Courier",
       "0,0,1,0x000000,0.25,,0x000000,0x000000,2,,0x000000,0x000010,2,W,0x000000%,FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF",
       "3,,0,0,,1,1", "25,35,50,0.5,50"},
      {{{kDepthBase, "1"}, {kStraBase, "T1 top"}, {kBaseDepth, "-1"}, {kDisplayMode, "1ff"},
        {kSymbolRadius, "0.0001"}, {kNameHeight, "0.0005"}, {kWallsDistance, "-3"}, {kContourPos, "0"},
        {kScanRadius, "12.5"}},
       defaults.prod, defaults.test, "1,T1 top,1200,255,,1,1", "25,0.0005,50,0.5,12.5"},
      {{{kDepthBase, "4"}, {kBaseDepth, "0"}, {kDisplayMode, "0x06"}, {kSymbolRadius, "0.00049999"},
        {kContourPos, "0.75"}},
       defaults.prod, defaults.test, "4,,0,6,,1,1", "25,35,50,0.75,50"},
      {{{kDepthBase, "5"}, {kBaseDepth, "2500.5m"}}, defaults.prod, defaults.test, "3,,2500.5,0,,1,1",
       defaults.map},
      {{{kDepthBase, "0"}}, defaults.prod, defaults.test, defaults.autoparm, defaults.map},
      {{{kDepthBase, "2.9"}}, defaults.prod, defaults.test, "2,,0,0,,1,1", defaults.map},
  };
  for (const Case& c : cases) {
    for (char lang : {0, 1}) {
      for (char read_lang : {0, 1}) {
        SCOPED_TRACE("case " + std::to_string(&c - cases) + " in language " + std::to_string(lang) + " read in " +
                     std::to_string(read_lang));
        ReadBlock(lang, c.keys, read_lang);
        // Under the other language the block is not found: every default.
        const Case& want = lang == read_lang ? c : defaults;
        const std::string face = sGetCfgStr(read_lang, kDefaultFace);
        EXPECT_EQ(Values(*sCfgGetOldProdPropPtr()), Expand(want.prod, face));
        EXPECT_EQ(Values(*sCfgGetOldTestPropPtr()), Expand(want.test, face));
        EXPECT_EQ(Values(*sCfgGetJWTAutoParmPtr()), want.autoparm);
        EXPECT_EQ(Values(*sCfgGetJWTMapPropPtr()), want.map);
      }
    }
  }
}

// Clearing the store resets the records where they are.
TEST(WellLocationMap, ClearingResetsTheRecordsInPlace) {
  mapcfg_test::StoreGuard guard;
  ReadBlock(1, {{kStraBase, "T2"}, {kProdLineName, "Dash"}}, 1);
  _OldProdProp* p = sCfgGetOldProdPropPtr();
  _JWTAutoParm* a = sCfgGetJWTAutoParmPtr();
  EXPECT_EQ(Values(*a), "3,T2,0,0,,1,1");
  sCfgClearPlate();
  EXPECT_EQ(sCfgGetOldProdPropPtr(), p);
  EXPECT_EQ(sCfgGetJWTAutoParmPtr(), a);
  EXPECT_EQ(Values(*p), Values(_OldProdProp{}));
  EXPECT_EQ(Values(*a), "0,,0,0,,0,0");
}

}  // namespace
