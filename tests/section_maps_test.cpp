// Parameters of the section map kinds read from scripts, and their getters
// by map kind (the records' archive layouts are golden streams in
// tests/data/archive/records.hex).
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <cstring>
#include <map>
#include <sstream>
#include <string>

#include "test_util.h"

using namespace mapcfg;

namespace {

// Rows of the configuration string table.
constexpr int kProfileMap = 339, kCorrelationMap = 340, kFenceMap = 341;

// Every field of a kind's set by name: "auto.FixedSpace", "map.FmtTLine.width",
// "model", "fault.width" ...
std::map<std::string, std::string> KindFields(const String& kind) {
  std::map<std::string, std::string> m;
  const auto add = [&](const std::string& prefix, const FieldTexts& texts) {
    for (const FieldText& f : texts) m[prefix + f.name] = f.value;
  };
  add("auto.", sDescribe(*sCfgGetPMTAutoParmPtr(kind)));
  add("map.", sDescribe(*sCfgGetPMTMapPropPtr(kind)));
  add("body.", sDescribe(*sCfgGetPMTBodyPropPtr(kind)));
  add("label.", sDescribe(*sCfgGetPMTLabelPropPtr(kind)));
  m["model"] = std::to_string(static_cast<int>(*sCfgGetPMTModelPropPtr(kind)));
  add("fault.", sDescribe(*sCfgGetPMTFaultPropPtr(kind)));
  add("divi.", sDescribe(*sCfgGetPMTDiviPropPtr(kind)));
  return m;
}

TEST(SectionMaps, ReadersTakeEachKeyWithItsScanDefaultAndClamp) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  struct Case {
    int key;            // row of the key's name; -1 for an empty block
    const char* value;  // the key's value
    const char* want;   // "field=text" pairs separated by ";"
  };
  const Case cases[] = {
      // An empty block: the defaults; what the readers reset goes, the
      // points are not theirs.
      {-1, "",
       "auto.flag0=0;auto.Text=;auto.Point1.x=1;auto.FixedSpace=0;auto.FixedSpaceNegative=0;map.HoleAxialLine=0;"
       "map.Rlev=0.125;map.EffectiveVal1=-999.25;map.EffectiveVal2=-999.25;map.LeastInterlayer=0.1;"
       "map.FmtGroundPatt.backColor=0xFFFFFF;map.FmtGroundPatt.ratio=2.5;map.SublayerPatt.ratio=2.5;"
       "map.FmtTLine.width=0;map.InteBLine.width=0;map.InteBLine.style=;map.PerforationSymbol=;"
       "body.HoleBorder.color=0x000000;body.HoleBorder.style=;body.HoleBorder.width=0;body.WNameFont.height=16;"
       "body.WNameFont.weight=400;body.Reserved=0;label.RulerLineOffset=10;label.RulerScaleSpace=10;"
       "label.RulerLine.width=1;label.RulerLine.color=0x000000;label.RulerMarkWidth=0.25;"
       "label.RulerFmtFont.height=0;label.RulerFmtFont.charSet=134;model=0;fault.color=0x000000;fault.style=;"
       "fault.width=0;divi.width=0"},
      // The spacing's sign is a flag of its own.
      {74, "-30", "auto.FixedSpace=30;auto.FixedSpaceNegative=1"},
      {74, "0", "auto.FixedSpace=0;auto.FixedSpaceNegative=0"},
      {74, "12.5", "auto.FixedSpace=12.5;auto.FixedSpaceNegative=0"},
      {73, "1f", "auto.AutoCreateFlags=0x00001F"},
      {70, "257", "auto.FlattenByElev=1"},  // bytes keep the low bits
      {71, "abc", "auto.TopVD=0"},
      // A switch is on for any text but "0".
      {68, "00", "map.HoleAxialLine=1"},
      {68, "0", "map.HoleAxialLine=0"},
      {93, "1", "map.SublayerFillLith=1"},
      // An unreadable value is 0, not the default of a missing one.
      {67, "abc", "map.Rlev=0"},
      {137, "-1.5", "map.EffectiveVal1=-1.5;map.EffectiveVal2=-999.25"},
      {100, "0", "map.LeastInterlayer=0.1"},
      {100, "-1", "map.LeastInterlayer=0.1"},
      {100, "0.5", "map.LeastInterlayer=0.5"},
      {94, "-2", "map.FmtTLine.width=0"},
      {94, "0.3", "map.FmtTLine.width=0.3;map.FmtBLine.width=0"},
      {92, "ff00", "map.FmtGroundPatt.backColor=0x00FF00;map.SublayerPatt.backColor=0xFFFFFF"},
      {10, "Shot A", "map.PerforationSymbol=Shot A;map.PerforationPlug="},
      {344, "Open", "map.PerforationUnplug=Open"},
      {22, "-2", "body.WNameFont.height=16"},
      {22, "12", "body.WNameFont.height=12"},
      {90, "3", "body.BeforeGridNumber=3"},
      {83, "0.3", "body.HoleBorder.width=0.3"},
      {80, "1.25", "body.HoleWidth=1.25"},
      {145, "0", "label.RulerScaleSpace=10"},
      {145, "-5", "label.RulerScaleSpace=-5"},
      {143, "abc", "label.RulerLineOffset=0"},
      {146, "2", "label.RulerLine.width=2"},
      {147, "0", "label.RulerMarkWidth=0"},
      {148, "14", "label.RulerFmtFont.height=14"},
      // Model flags are hexadecimal behind a "0x" of their own.
      {104, "11", "model=17"},
      {104, "0x11", "model=17"},
      {104, "ff", "model=-1"},
      {104, "-1", "model=0"},
      {107, "0.7", "fault.width=0.7;divi.width=0"},
      {105, "0.4", "divi.width=0.4;fault.width=0"},
  };
  for (const char lang : {0, 1}) {
    const String kind = sGetCfgStr(lang, kProfileMap);
    for (const Case& c : cases) {
      const std::string row = c.key < 0 ? "" : sGetCfgStr(lang, c.key) + " = " + c.value + "\n";
      SCOPED_TRACE(row + " in language " + std::to_string(lang));
      CCfgScript script;
      script.Open(dir.Write("section.cfg", "Config: " + kind + "\nBegin\n" + row + "End\n").c_str(), 0);
      *sGetCfgLang() = lang;
      // Leftovers that the readers must clear.
      _PMTAutoParm* autoParm = sCfgGetPMTAutoParmPtr(kind);
      autoParm->flag0 = 9;
      autoParm->Text = "old";
      autoParm->Point1.x = 1;
      for (LINE_PROP* line : {sCfgGetPMTFaultPropPtr(kind), &sCfgGetPMTBodyPropPtr(kind)->HoleBorder,
                              &sCfgGetPMTLabelPropPtr(kind)->RulerLine, &sCfgGetPMTMapPropPtr(kind)->InteBLine})
        *line = LINE_PROP{0xFF, 9, "old"};
      sCfgReadPMTAutoParm(script, kind, autoParm);
      sCfgReadPMTMapProp(script, kind, sCfgGetPMTMapPropPtr(kind), 2.5f);
      sCfgReadPMTBodyProp(script, kind, sCfgGetPMTBodyPropPtr(kind));
      sCfgReadPMTLabelProp(script, kind, sCfgGetPMTLabelPropPtr(kind));
      sCfgReadPMTModelProp(script, kind, sCfgGetPMTModelPropPtr(kind));
      sCfgReadPMTFaultProp(script, kind, sCfgGetPMTFaultPropPtr(kind));
      sCfgReadPMTDiviProp(script, kind, sCfgGetPMTDiviPropPtr(kind));
      const std::map<std::string, std::string> fields = KindFields(kind);
      std::istringstream want(c.want);
      for (std::string pair; std::getline(want, pair, ';');) {
        const std::string name = pair.substr(0, pair.find('='));
        ASSERT_EQ(fields.count(name), 1u) << name;
        EXPECT_EQ(fields.at(name), pair.substr(pair.find('=') + 1)) << name;
      }
    }
  }
}

TEST(SectionMaps, GettersKnowEachKindByItsNameInTheCurrentLanguageOnly) {
  mapcfg_test::StoreGuard guard;
  using Getter = const void* (*)(const String&);
  const Getter getters[] = {
      [](const String& n) -> const void* { return sCfgGetPMTAutoParmPtr(n); },
      [](const String& n) -> const void* { return sCfgGetPMTMapPropPtr(n); },
      [](const String& n) -> const void* { return sCfgGetPMTBodyPropPtr(n); },
      [](const String& n) -> const void* { return sCfgGetPMTFaultPropPtr(n); },
      [](const String& n) -> const void* { return sCfgGetPMTDiviPropPtr(n); },
      // The fence map has neither of these two.
      [](const String& n) -> const void* { return sCfgGetPMTLabelPropPtr(n); },
      [](const String& n) -> const void* { return sCfgGetPMTModelPropPtr(n); },
  };
  std::map<int, std::string> seen[2];  // record per getter and kind, by language
  for (const char lang : {0, 1}) {
    *sGetCfgLang() = lang;
    for (size_t g = 0; g < std::size(getters); ++g) {
      SCOPED_TRACE("getter " + std::to_string(g) + " in language " + std::to_string(lang));
      std::string kinds;
      for (const int kind : {kProfileMap, kFenceMap, kCorrelationMap}) {
        const void* p = getters[g](sGetCfgStr(lang, kind));
        kinds += p ? "+" : "-";
        seen[static_cast<int>(lang)][static_cast<int>(g) * 1000 + kind] = std::to_string(reinterpret_cast<uintptr_t>(p));
      }
      EXPECT_EQ(kinds, g < 5 ? "+++" : "+-+");
      // Distinct kinds never share a record.
      EXPECT_NE(getters[g](sGetCfgStr(lang, kProfileMap)), getters[g](sGetCfgStr(lang, kCorrelationMap)));
      for (const String& other : {sGetCfgStr(1 - lang, kProfileMap), sGetCfgStr(1 - lang, kFenceMap),
                                  String("reservoir profile map"), String()})
        EXPECT_EQ(getters[g](other), nullptr) << other;
    }
  }
  // Either language's name reaches the same record.
  EXPECT_EQ(seen[0], seen[1]);
  // Reading one kind leaves the others alone.
  *sGetCfgLang() = 0;
  sCfgGetPMTAutoParmPtr(sGetCfgStr(0, kProfileMap))->FixedSpace = 30;
  EXPECT_EQ(sCfgGetPMTAutoParmPtr(sGetCfgStr(0, kFenceMap))->FixedSpace, 0.0f);
  EXPECT_EQ(sCfgGetPMTAutoParmPtr(sGetCfgStr(0, kCorrelationMap))->FixedSpace, 0.0f);
}

}  // namespace
