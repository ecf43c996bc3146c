// The example oil-field configuration: its Chinese script is the GBK form of
// its UTF-8 source, the English and Chinese twins hold the same blocks and
// rows, and the store reads both alike.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string>

#include "test_util.h"

using namespace mapcfg;

namespace {

const std::string kEn = MAPCFG_EXAMPLES "/en/field.cfg";
const std::string kZh = MAPCFG_EXAMPLES "/zh/field.cfg";

// A value's separators and numbers (decimal or hexadecimal), every other
// field as "*": what the two languages share.
std::string Shape(const String& value) {
  std::string shape, field;
  const auto flush = [&] {
    const size_t first = field.find_first_not_of(' '), last = field.find_last_not_of(' ');
    field = first == std::string::npos ? "" : field.substr(first, last - first + 1);
    bool number = true;
    for (const char c : field)
      number = number && (std::isxdigit(static_cast<unsigned char>(c)) || c == '.' || c == '-');
    shape += number ? field : "*";
    field.clear();
  };
  for (const char c : value) {
    if (c == ';' || c == ':' || c == ',') {
      flush();
      shape += c;
    } else {
      field += c;
    }
  }
  flush();
  return shape;
}

TEST(Examples, ChineseScriptIsTheGbkFormOfItsSource) {
  const std::string source = mapcfg_test::ReadAll(MAPCFG_EXAMPLES "/zh.utf8/field.cfg");
  ASSERT_FALSE(source.empty());
  EXPECT_EQ(mapcfg_test::ReadAll(kZh), mapcfg_test::Iconv("GBK", "UTF-8", source))
      << "remake it: iconv -f UTF-8 -t GBK examples/zh.utf8/field.cfg > examples/zh/field.cfg";
}

TEST(Examples, TwinsHoldTheSameBlocksAndRowsAndReadAlike) {
  mapcfg_test::StoreGuard guard;
  // Configuration strings of the blocks, in file order; -1 for the
  // single-well templates and tracks, which the example names itself.
  const int kBlocks[] = {530, 3, 2, 4, 9, 8, 198, 200, 535, 192, 195, 1, 12, 14, 15, 320, 338, 339, 341, 340,
                         123, 124, 126, 113, 342, 127, 128, 347, 112, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
  CCfgScript en, zh;
  en.Open(kEn.c_str(), 0);
  zh.Open(kZh.c_str(), 0);
  ASSERT_EQ(en.GetCfgCnt(), static_cast<int>(std::size(kBlocks)));
  ASSERT_EQ(zh.GetCfgCnt(), en.GetCfgCnt());
  for (int b = 0; b < en.GetCfgCnt(); ++b) {
    SCOPED_TRACE(en.GetCfgName(b));
    if (kBlocks[b] >= 0) {
      EXPECT_EQ(en.GetCfgName(b), sGetCfgStr(0, kBlocks[b]));
      EXPECT_EQ(zh.GetCfgName(b), sGetCfgStr(1, kBlocks[b]));
      EXPECT_GE(en.GetKeyCntAt(b), 3);
    }
    ASSERT_EQ(zh.GetKeyCntAt(b), en.GetKeyCntAt(b));
    for (int k = 0; k < en.GetKeyCntAt(b); ++k)
      EXPECT_EQ(Shape(zh.GetKeyValAt(b, k)), Shape(en.GetKeyValAt(b, k))) << en.GetKeyNameAt(b, k);
  }

  // Each script read in its own language gives the same settings.
  std::string read[2], templates[2], single[2];
  for (int lang : {0, 1}) {
    sCfgClearPlate();
    sCfgGetLibDllsPtr()->clear();  // sCfgClearPlate leaves the extension lists
    sCfgGetMenuFunsPtr()->clear();
    *sGetCfgLang() = static_cast<char>(lang);
    CCfgScript& script = lang ? zh : en;
    sCfgReadSysCfgParam(script);
    sCfgReadLibDlls(script);
    sCfgReadMenuFuns(script);
    sCfgReadPlaneShapes(script);
    sCfgReadDataMigrate(script);
    for (const FieldText& f : sDescribe(*sCfgGetSysCfgParamPtr())) read[lang] += f.value + ";";
    // The templates alike but for their names, which each language gives.
    for (const FieldTexts& table : {sDescribePlaneShapes(), sDescribeDataMigrate()})
      for (const FieldText& f : table)
        templates[lang] += f.name + "=" + (f.name.size() > 4 && f.name.substr(f.name.size() - 4) == "Name" ? "" : f.value) + ";";
    *sCfgGetMapSinglePtr() = _CfgMapSingle();  // the reader appends templates
    sCfgReadMapSingle(script);
    // The single-well templates: every number of every track and curve.
    for (const FieldText& f : sDescribeMapKind(sGetCfgStr(static_cast<char>(lang), 347)))
      if (f.kind != FieldText::kText) single[lang] += f.name + "=" + f.value + ";";
    for (const StringArray* files : {sCfgGetLibDllsPtr(), sCfgGetMenuFunsPtr()})
      for (const String& file : *files) read[lang] += file + ";";
  }
  EXPECT_EQ(read[0],
            "145.5;0;0;WellImport.dll;CurveTools.dll;ReservoirSection.dll;GridEdit.exe;WellBrowse.exe;"
            "ProdAnalysis.exe;");
  EXPECT_EQ(read[1], read[0]);
  EXPECT_EQ(templates[1], templates[0]);
  EXPECT_NE(templates[0].find("immigrate[2].Items[3].Source=BTM_DEP;"), std::string::npos) << templates[0];
  EXPECT_NE(templates[0].find("noDiviTypes[1].Patt.name=SiltstonePattern;"), std::string::npos);
  EXPECT_NE(single[0].find("templs[1].Tracks[1].Children[1].Curves[0].Prop.RightValue=100;"), std::string::npos);
  const auto differ = std::mismatch(single[0].begin(), single[0].end(), single[1].begin(), single[1].end());
  EXPECT_TRUE(differ.first == single[0].end() && differ.second == single[1].end())
      << single[0].substr(static_cast<size_t>(differ.first - single[0].begin()), 120);
}

}  // namespace
