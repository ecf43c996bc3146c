// Parameters of the section map kinds read from scripts, and their getters
// by map kind (the records' archive layouts are golden streams in
// tests/data/archive/records.hex).
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <cstring>
#include <map>
#include <sstream>
#include <string>

#include "store_test_util.h"
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
  for (const char lang : {0, 1}) {
    const String kind = sGetCfgStr(lang, kProfileMap);
    for (const std::vector<std::string>& c : mapcfg_test::ReadRows("section_keys.txt")) {
      const int key = std::stoi(c.at(0));
      const std::string row = key < 0 ? "" : sGetCfgStr(lang, key) + " = " + c.at(1) + "\n";
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
      std::istringstream want(c.at(2));
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
