// System parameters: the script block and the display systems (the record's
// archive layout is golden streams in tests/data/archive/records.hex).
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <string>

#include "archive_test_util.h"
#include "store_test_util.h"
#include "test_util.h"

using namespace mapcfg;

namespace {

constexpr double kFeet = 3.28084;

// Loads two user depth systems and one user coordinate system from an archive.
void LoadUserSystems(uint8_t depth, uint8_t coord) {
  const StringArray names{"Kilometre", "Decimetre"}, units{"km", "dm"};
  const _SysCfgParam p{12.5, depth, coord, names, {0.001, 10.0}, units, {names[0]}, {0.001}, {units[0]}};
  CFFArchive out, in;
  out.PutSysCfgParam(&p);
  ASSERT_EQ(mapcfg_test::Loaded(in, mapcfg_test::Bytes(out)).GetSysCfgParam(sCfgGetSysCfgParamPtr(), 0x03012067), 1);
}

// The record's values, "datum,depth,coord" and then the user systems' cells.
const auto& Text = mapcfg_test::Values<_SysCfgParam>;

TEST(SystemParams, ScriptBlockIsReadInItsLanguageAndDropsUserSystems) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  struct Case {
    char lang;                          // language of the script's names
    const char *datum, *depth, *coord;  // values; null leaves the key out
    const char* want;
  };
  const Case cases[] = {
      {0, "125.5", "1", "0", "125.5,1,0"},
      {1, "-32.25", "0", "1", "-32.25,0,1"},
      // Numbers are read as far as they go; what does not start with one is 0.
      {0, " 1.5e2 m", "2 // user", "abc", "150,2,0"},
      {1, "\"\"", nullptr, nullptr, "0,0,0"},
      // The systems are bytes: 258 is 2, -1 is 255.
      {0, "7", "258", "-1", "7,2,255"},
  };
  for (const Case& c : cases) {
    std::string block = "Config: " + sGetCfgStr(c.lang, 530) + "\nBegin\n";
    const char* values[] = {c.datum, c.depth, c.coord};
    for (int key = 0; key < 3; ++key)
      if (values[key]) block += sGetCfgStr(c.lang, 531 + key) + " = " + values[key] + "\n";
    CCfgScript script;
    script.Open(dir.Write("sys.cfg", block + "End\n").c_str(), 0);
    for (char lang : {0, 1}) {
      SCOPED_TRACE(block + " read in language " + std::to_string(lang));
      LoadUserSystems(5, 6);
      *sGetCfgLang() = lang;
      sCfgReadSysCfgParam(script);
      // Under the other language the block is not found and all is 0.
      EXPECT_EQ(Text(*sCfgGetSysCfgParamPtr()), (c.lang == 1) == (lang == 1) ? c.want : "0,0,0");
    }
  }
  // Clearing the store resets the record where it is.
  _SysCfgParam* p = sCfgGetSysCfgParamPtr();
  LoadUserSystems(3, 2);
  sCfgClearPlate();
  EXPECT_EQ(sCfgGetSysCfgParamPtr(), p);
  EXPECT_EQ(Text(*p), "0,0,0");
}

TEST(SystemParams, DisplaySystemsFactorsAndCaptions) {
  mapcfg_test::StoreGuard guard;
  *sDllGetResStrPtr() = nullptr;  // the built-in English captions
  struct Case {
    uint8_t system;  // display system of depths and of coordinates
    char org;        // source system
    double depth;    // factor of the depth display system, captions "first|second"
    const char* captions;
    double coord;  // factor of the coordinate display system
  };
  const Case cases[] = {
      {0, 0, 1.0, "m|Metre", 1.0},
      {1, 0, kFeet, "ft|Foot", kFeet},
      {1, 1, kFeet, "ft|Foot", kFeet},
      {0, 1, 1.0, "m|Metre", 1.0},
      // User systems: first caption the second text, second the first.
      {2, 0, 0.001, "km|Kilometre", 0.001},
      {3, 1, 10.0, "dm|Decimetre", 1.0},  // past the coordinate systems
      // Past both, and codes that are negative as signed bytes: metric.
      {5, 7, 1.0, "m|Metre", 1.0},
      {130, '\xff', 1.0, "m|Metre", 1.0},
      {255, 1, 1.0, "m|Metre", 1.0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE("system " + std::to_string(c.system) + " from " + std::to_string(c.org));
    LoadUserSystems(c.system, c.system);
    String first = "x", second = "x";
    EXPECT_DOUBLE_EQ(cfgGetDepthDispSystem(&first, &second), c.depth);
    EXPECT_EQ(first + "|" + second, c.captions);
    EXPECT_DOUBLE_EQ(cfgGetCoordDispSystem(nullptr, nullptr), c.coord);
    const double org = c.org == 1 ? kFeet : 1.0;  // only source 1 is not metres
    EXPECT_DOUBLE_EQ(cfgGetOrgSystem(c.org, &first, &second), org);
    EXPECT_EQ(first + "|" + second, c.org == 1 ? "ft|Foot" : "m|Metre");
    EXPECT_DOUBLE_EQ(cfgDepthOrg2DispSystem(c.org, &first, &second), c.depth / org);
    EXPECT_EQ(first + "|" + second, c.captions);
    EXPECT_DOUBLE_EQ(cfgCoordOrg2DispSystem(c.org, nullptr, nullptr), c.coord / org);
  }
  // A host that left a user system without its texts gets empty captions.
  LoadUserSystems(3, 3);
  sCfgGetSysCfgParamPtr()->depthTexts2.clear();
  String first = "x", second = "x";
  EXPECT_EQ(cfgGetDepthDispSystem(&first, &second), 10.0);
  EXPECT_EQ(first + "|" + second, "|Decimetre");
}

}  // namespace
