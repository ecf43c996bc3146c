// Plane-shape and migration templates: read from their blocks in either
// language with every default and clamp, emptied by sCfgClearPlate, and
// through their archive streams and back. Their record layouts are golden
// streams in tests/data/archive/records.hex.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <string>

#include "archive_test_util.h"
#include "store_test_util.h"
#include "test_util.h"

using namespace mapcfg;
using mapcfg_test::Lines;

namespace {

// `english` with every configuration string written between "<" and ">"
// turned into language `lang` ("<Division>" is "分界" in Chinese), as GBK.
String Named(std::string english, char lang) {
  for (size_t open; (open = english.find('<')) != std::string::npos;) {
    const size_t close = english.find('>', open);
    const std::string name = english.substr(open + 1, close - open - 1);
    String text;
    for (int i = 0; i < kCfgStrCount && text.empty(); ++i)
      if (sGetCfgStr(0, i) == name) text = sGetCfgStr(lang, i);
    if (text.empty()) ADD_FAILURE() << "no configuration string " << name;
    english.replace(open, close - open + 1, text);
  }
  return english;
}

// The tables read from `script` (in language `lang`) by `read`, as `describe`
// lists them.
std::string ReadTable(const String& script, char lang, void (*read)(CCfgScript&), FieldTexts (*describe)()) {
  mapcfg_test::TempDir dir;
  CCfgScript s;
  s.Open(dir.Write("t.cfg", script).c_str(), 0);
  *sGetCfgLang() = lang;
  sCfgClearPlate();
  read(s);
  return Lines(describe());
}

// Both tables read from one script.
void ReadBoth(CCfgScript& script) {
  sCfgReadPlaneShapes(script);
  sCfgReadDataMigrate(script);
}

// A template's fields as the stream lists them, from Name to TipPatt.name.
std::string Templ(const std::string& role, const std::string& values) {
  static const char* const kNames[] = {"Name",       "DivisionLength", "DiviInterval",   "MinTipNumber",
                                       "MaxTipNumber", "TipShape",     "TipHeight",      "Line.color",
                                       "Line.width", "Line.style",     "TipPatt.foreColor", "TipPatt.backColor",
                                       "TipPatt.ratio", "TipPatt.name"};
  std::string s;
  size_t from = 0;
  for (const char* name : kNames) {
    const size_t comma = values.find(',', from);
    s += role + "." + name + "=" + values.substr(from, comma - from) + "\n";
    from = comma == std::string::npos ? values.size() : comma + 1;
  }
  return s;
}

const char kDefaultTempl[] = "2,5,1,100,0,1,0x000000,0.05,,0x000000,0xFFFFFF,1,";

}  // namespace

TEST(PlateTemplates, PlaneShapesInEitherLanguageWithDefaultsAndClamps) {
  mapcfg_test::StoreGuard guard;
  const std::string script =
      "Config: <Pinch-out>\nBegin\n"
      "<UpPinch-outTemplate> = Up tips\n<MidPinch-outTemplate> = Mid tips\n<DownPinch-outTemplate> =\n"
      "End\n"
      "Config: Up tips\nBegin\n"
      "<DivisionLength> = 2.5\n<DiviInterval> = 6\n<MinTipNumber> = 2\n<MaxTipNumber> = 40\n"
      "<tip> = 1; 1.5; Solid; 0.3; ff; Sand; ffff\n"
      "End\n"
      // Clamps: lengths not above 0, tips below 0 or below the minimum, a
      // shape outside 0..2, a height not above 0; an empty tip field keeps
      // the line's and pattern's own default.
      "Config: Mid tips\nBegin\n"
      "<DivisionLength> = 0\n<DiviInterval> = -3\n<MinTipNumber> = -4\n<MaxTipNumber> = -9\n"
      "<tip> = 7; -1; ; ; ; ; 00ff00\n"
      "End\n"
      "Config: <Division>\nBegin\n"
      "<MinTipNumber> = 5\n<MaxTipNumber> = 3\n<tip> = 2\n<Horizontal Boundary line> = Flat\n"
      "<NoBoundDiviType> = Sand-mud; 1.5; Mud; c0c0c0\n"
      "<NoBoundDiviType> = ; 2; skipped\n"
      "<NoBoundDiviType> = Oil-water; -2\n"
      "End\n"
      "Config: Flat\nBegin\n<DiviInterval> = 12\n<tip> = 0; 0.5; Dash\nEnd\n"
      // The down template's block is named like its key.
      "Config: <DownPinch-outTemplate>\nBegin\n<MinTipNumber> = 3\nEnd\n";
  const std::string expected =
      Templ("upPinchOut", "Up tips,2.5,6,2,40,1,1.5,0x0000FF,0.3,Solid,0x000000,0x00FFFF,1,Sand") +
      Templ("midPinchOut", "Mid tips,2,5,0,0,0,1,0x000000,0.05,,0x000000,0x00FF00,1,") +
      Templ("downPinchOut", "DOWN,2,5,3,100,0,1,0x000000,0.05,,0x000000,0xFFFFFF,1,") +
      Templ("division", "DIVISION,2,5,5,5,2,1,0x000000,0.05,,0x000000,0xFFFFFF,1,") +
      Templ("horzBoundary", "Flat,2,12,1,100,0,0.5,0x000000,0.05,Dash,0x000000,0xFFFFFF,1,") +
      "noDiviTypes[0].Name=Sand-mud\nnoDiviTypes[0].Width=1.5\nnoDiviTypes[0].Patt.foreColor=0x000000\n"
      "noDiviTypes[0].Patt.backColor=0xC0C0C0\nnoDiviTypes[0].Patt.ratio=1\nnoDiviTypes[0].Patt.name=Mud\n"
      "noDiviTypes[1].Name=Oil-water\nnoDiviTypes[1].Width=0\nnoDiviTypes[1].Patt.foreColor=0x000000\n"
      "noDiviTypes[1].Patt.backColor=0xFFFFFF\nnoDiviTypes[1].Patt.ratio=1\nnoDiviTypes[1].Patt.name=\n";
  for (char lang : {0, 1}) {
    SCOPED_TRACE(static_cast<int>(lang));
    std::string want = expected;
    want.replace(want.find("DIVISION"), 8, Named("<Division>", lang));
    want.replace(want.find("DOWN"), 4, Named("<DownPinch-outTemplate>", lang));
    EXPECT_EQ(ReadTable(Named(script, lang), lang, sCfgReadPlaneShapes, sDescribePlaneShapes), want);
    // The other language's names are not read: every template is read from
    // the absent block named like its key, so it keeps every default.
    const std::string none = ReadTable(Named(script, lang), static_cast<char>(1 - lang), sCfgReadPlaneShapes,
                                       sDescribePlaneShapes);
    const auto absent = [lang](const char* block) {
      return Named(block, static_cast<char>(1 - lang)) + "," + kDefaultTempl;
    };
    EXPECT_EQ(none, Templ("upPinchOut", absent("<UpPinch-outTemplate>")) +
                        Templ("midPinchOut", absent("<MidPinch-outTemplate>")) +
                        Templ("downPinchOut", absent("<DownPinch-outTemplate>")) +
                        Templ("division", absent("<Division>")) +
                        Templ("horzBoundary", absent("<Horizontal Boundary line>")));
  }
  // The readers of one template and of the types take the caller's ratio.
  mapcfg_test::TempDir dir;
  CCfgScript s;
  s.Open(dir.Write("r.cfg", Named(script, 0)).c_str(), 0);
  *sGetCfgLang() = 0;
  _PlaneShapeTempl t;
  sCfgReadPlaneShapeTempl(s, "Up tips", &t, 2.5f);
  RecordArray<_NoDiviType> types;
  sCfgReadNoDiviTypes(s, "Division", types, 0.5f);
  ASSERT_EQ(types.size(), 2u);
  EXPECT_EQ(t.TipPatt.ratio, 2.5f);
  EXPECT_EQ(types[1]->Patt.ratio, 0.5f);
}

TEST(PlateTemplates, MigrationTemplatesInEitherLanguage) {
  mapcfg_test::StoreGuard guard;
  struct Case {
    const char* rows;      // block rows, "<...>" names in the language read
    const char* expected;  // the first template's fields
  } const kCases[] = {
      // Every parameter. The main key marks the column of its target (case
      // ignored) and adds the one the columns lack.
      {"Wells = WELL_NAME: WELL_ID; WELL_HEAD_X: X; ; : Y; TOTAL_DEPTH\n"
       "Wells<|Source SQL Sentence> = SELECT * FROM WELL_LOC WHERE ORG_ID='A'\n"
       "Wells<|Target SQL Sentence> = SELECT * FROM WELL_LOCATION\n"
       "wells<|Main key Parallelism> = well_name: WELL_ID; ORG_ID: ORG\n"
       "Wells<|Well Code Parallelism> = WELL_NAME; WELL_ID\n"
       "Wells<|Immigrate Parameter> = 1f\n"
       "Wells<|DIP Parameter> =         ; 0DEPT; 1DEVI; 2AZIM\n",
       "Name=Wells\nSourceSQL=SELECT * FROM WELL_LOC WHERE ORG_ID='A'\nTargetSQL=SELECT * FROM WELL_LOCATION\n"
       "Params=0x00001F\nWellTarget=WELL_NAME\nWellSource=WELL_ID\n"
       "DipColumns[0]=\nDipColumns[1]=0DEPT\nDipColumns[2]=1DEVI\nDipColumns[3]=2AZIM\n"
       "Items[0].Target=WELL_NAME\nItems[0].Source=WELL_ID\nItems[0].Key=1\n"
       "Items[1].Target=WELL_HEAD_X\nItems[1].Source=X\nItems[1].Key=0\n"
       "Items[2].Target=TOTAL_DEPTH\nItems[2].Source=\nItems[2].Key=0\n"
       "Items[3].Target=ORG_ID\nItems[3].Source=ORG\nItems[3].Key=1\n"},
      // No parameter: every field empty; a parameter row alone starts no
      // template.
      {"Orphan<|Source SQL Sentence> = SELECT 1\nBare =\n",
       "Name=Bare\nSourceSQL=\nTargetSQL=\nParams=0x000000\nWellTarget=\nWellSource=\n"},
      // A GBK name whose second byte is "|" (電纜測井) is a template, not a
      // parameter.
      {"\xEB\x8A\xC0\x7C\x9C\x79\xBE\xAE = DEPT\n",
       "Name=\xEB\x8A\xC0\x7C\x9C\x79\xBE\xAE\nSourceSQL=\nTargetSQL=\nParams=0x000000\nWellTarget=\nWellSource=\n"
       "Items[0].Target=DEPT\nItems[0].Source=\nItems[0].Key=0\n"},
  };
  for (char lang : {0, 1}) {
    for (const Case& c : kCases) {
      SCOPED_TRACE(std::to_string(lang) + ": " + c.rows);
      const String script = Named(std::string("Config: <Data_Immigrate>\nBegin\n") + c.rows + "End\n" +
                                      "Config: <Data_Migrate>\nBegin\nOut = A\nOut2<|DIP Parameter> = x\nOut2 = B\nEnd\n",
                                  lang);
      const std::string all = ReadTable(script, lang, sCfgReadDataMigrate, sDescribeDataMigrate);
      const std::string out = "migrate[0].Name=Out\n";
      ASSERT_EQ(all.compare(0, out.size(), out), 0) << all;
      const size_t in = all.find("immigrate[0].");
      ASSERT_NE(in, std::string::npos) << all;
      std::string first = all.substr(in);
      first = first.substr(0, first.find("immigrate[1]."));
      for (size_t at; (at = first.find("immigrate[0].")) != std::string::npos;) first.erase(at, 13);
      EXPECT_EQ(first, c.expected);
      ASSERT_EQ(sCfgGetMigraTemplsPtr()->size(), 2u);
      EXPECT_EQ((*sCfgGetMigraTemplsPtr())[1]->DipColumns, StringArray{"x"});
      EXPECT_EQ(sCfgFindMigraTempl("OUT2", 0), (*sCfgGetMigraTemplsPtr())[1].get());
      EXPECT_EQ(sCfgFindMigraTempl("Out2", 1), nullptr);
    }
  }
}

TEST(PlateTemplates, ClearPlateEmptiesAndCopiesStandAlone) {
  mapcfg_test::StoreGuard guard;
  *sGetCfgLang() = 0;
  const std::string script =
      "Config: Pinch-out\nBegin\nUpPinch-outTemplate = T\nEnd\nConfig: T\nBegin\ntip = 1; 2; Dash\nEnd\n"
      "Config: Division\nBegin\nNoBoundDiviType = A; 1\nEnd\n"
      "Config: Data_Migrate\nBegin\nOut = A: B\nEnd\nConfig: Data_Immigrate\nBegin\nIn = C\nEnd\n";
  ReadTable(script, 0, ReadBoth, sDescribePlaneShapes);
  ASSERT_EQ(sCfgGetPlaneShapeTemplPtr(kUpPinchOut)->Name, "T");
  ASSERT_EQ(sCfgGetNoDiviTypesPtr()->size(), 1u);
  ASSERT_EQ(sCfgGetImmigraTemplsPtr()->size(), 1u);

  // A copy owns its columns; copying a template onto itself keeps them.
  _MigraTempl copy;
  sCfgCopyMigraTempl(&copy, (*sCfgGetMigraTemplsPtr())[0].get());
  sCfgCopyMigraTempl(&copy, &copy);
  _PlaneShapeTempl shape;
  sCfgCopyPlaneShapeTempl(&shape, sCfgGetPlaneShapeTemplPtr(kUpPinchOut));

  const _PlaneShapeTempl* up = sCfgGetPlaneShapeTemplPtr(kUpPinchOut);
  sCfgClearPlate();
  EXPECT_EQ(sCfgGetPlaneShapeTemplPtr(kUpPinchOut), up);  // the getters' pointers stay valid
  EXPECT_EQ(Lines(sDescribe(*up)), Lines(sDescribe(_PlaneShapeTempl{})));
  EXPECT_TRUE(sCfgGetNoDiviTypesPtr()->empty());
  EXPECT_TRUE(sCfgGetMigraTemplsPtr()->empty());
  EXPECT_TRUE(sCfgGetImmigraTemplsPtr()->empty());
  EXPECT_EQ(sCfgGetPlaneShapeTemplPtr(-1), nullptr);
  EXPECT_EQ(sCfgGetPlaneShapeTemplPtr(kPlaneShapeRoleCount), nullptr);
  EXPECT_EQ(Lines(sDescribe(copy)), "Name=Out\nSourceSQL=\nTargetSQL=\nParams=0x000000\nWellTarget=\nWellSource=\n"
                                    "Items[0].Target=A\nItems[0].Source=B\nItems[0].Key=0\n");
  EXPECT_EQ(shape.Line.style, std::string("Dash"));
}

TEST(PlateTemplates, StreamsRoundTripAndOlderArchivesHoldNone) {
  mapcfg_test::StoreGuard guard;
  *sGetCfgLang() = 0;
  const std::string script =
      "Config: Pinch-out\nBegin\nMidPinch-outTemplate = T\nEnd\nConfig: T\nBegin\nMaxTipNumber = 9\n"
      "tip = 2; 3; Dash; 0.2; ff; Sand; ff00\nEnd\n"
      "Config: Division\nBegin\nNoBoundDiviType = A; 1; Mud\nNoBoundDiviType = B\nEnd\n"
      "Config: Data_Migrate\nBegin\nOut = A: B; C\nOut|DIP Parameter = 0WELL_ID; 1MD\nEnd\n"
      "Config: Data_Immigrate\nBegin\nIn = C\nIn|Main key Parallelism = C\nIn2 = D\nEnd\n";
  const std::string shapes = ReadTable(script, 0, ReadBoth, sDescribePlaneShapes);
  const std::string migra = Lines(sDescribeDataMigrate());

  CFFArchive a;
  EXPECT_EQ(sCfgWritePlaneShapes(a), "");
  EXPECT_EQ(sCfgWriteDataMigrate(a), "");
  const std::string bytes = mapcfg_test::Bytes(a);
  sCfgClearPlate();
  CFFArchive in;
  mapcfg_test::Loaded(in, bytes);
  EXPECT_EQ(sCfgReadPlaneShapes(in, kShapeTemplsVersion1), "");
  EXPECT_EQ(sCfgReadDataMigrate(in, kShapeTemplsVersion1), "");
  EXPECT_EQ(Lines(sDescribePlaneShapes()), shapes);
  EXPECT_EQ(Lines(sDescribeDataMigrate()), migra);
  EXPECT_NE(migra.find("immigrate[1].Name=In2"), std::string::npos);

  // An archive older than the tables holds none of them: nothing is read.
  sCfgClearPlate();
  mapcfg_test::Loaded(in, bytes);
  EXPECT_EQ(sCfgReadPlaneShapes(in, kShapeTemplsVersion1 - 1), "");
  EXPECT_EQ(sCfgReadDataMigrate(in, kShapeTemplsVersion1 - 1), "");
  EXPECT_TRUE(sCfgGetNoDiviTypesPtr()->empty());
  EXPECT_EQ(sCfgReadPlaneShapes(in, kShapeTemplsVersion1), "");  // still at the start

  // A stream cut anywhere stops with the archive's error and keeps what was
  // read before; it never reads beyond its bytes.
  for (size_t cut = 0; cut < bytes.size(); cut += 7) {
    sCfgClearPlate();
    mapcfg_test::Loaded(in, bytes.substr(0, cut));
    const String e1 = sCfgReadPlaneShapes(in, kShapeTemplsVersion1);
    const String e2 = e1.empty() ? sCfgReadDataMigrate(in, kShapeTemplsVersion1) : e1;
    EXPECT_EQ(e2, sGetInfoStr(838)) << cut;
  }
}
