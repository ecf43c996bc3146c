// Whole map kinds: read from their blocks in either language, each with its
// own records, and through their archive streams and back.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "archive_test_util.h"
#include "catalogs/display_fields.h"
#include "catalogs/map_record_fields.h"
#include "maps/section_fields.h"
#include "maps/wellloc_fields.h"
#include "record_random.h"
#include "store_test_util.h"
#include "test_util.h"

using namespace mapcfg;

namespace {

// English block and key names, turned into the language `lang` through the
// configuration string table.
String Named(const String& english, char lang) {
  for (int i = 0; i < kCfgStrCount; ++i)
    if (sGetCfgStr(0, i) == english) return sGetCfgStr(lang, i);
  ADD_FAILURE() << "no configuration string " << english;
  return english;
}

struct Row {
  const char* key;
  const char* value;
};

// A block of every kind with keys of each of its records set away from
// their defaults (section maps share the rows; the correlation map gets a
// few of its own so that the kinds differ).
String Script(char lang) {
  const Row common[] = {{"PatternRatio", "2"},        {"HorzSpaceRatio", "1.5"}, {"MapName", "Liuhe field"},
                        {"FrameFlags", "3"},          {"Legend", "0"},           {"LegendMetaCols", "3"},
                        {"ScaleHeight", "4"},         {"ScaleMajorUnit", "km"},  {"LegendBorderWidth", "0.4"}};
  const Row section[] = {{"FixedSpace", "-30"},     {"TopVD", "1200"},          {"LeastInterlayer", "0"},
                         {"RulerScaleSpace", "20"}, {"SmoothModelLine", "1"},   {"FaultLineWidth", "0.8"},
                         {"HoleWidth", "12"},       {"Perforation Symbol", "P"}, {"Curve", "GR; Gamma; 0; 150; Dash; 0.3; FF0000"},
                         {"Curve", "SP; Spont; -80; 20; ; 0.2; 00FF00"},       {"FillingCurve", "GR; SP; Sand; FFFF00"}};
  const Row wellloc[] = {{"DepthBaseMode", "2"},  {"SglBaseDepth", "-5"},  {"WSymbolRadius", "30"},
                         {"StatusLineWidth", "1"}, {"TestLblFontHeight", "30"}, {"StatusCorreMode", "1"}};
  String s;
  const auto block = [&](const char* kind, std::vector<Row> rows) {
    s += "Config: " + Named(kind, lang) + "\nBegin\n";
    for (const Row& r : rows) s += Named(r.key, lang) + " = " + r.value + "\n";
    s += "End\n";
  };
  std::vector<Row> rows(std::begin(common), std::end(common));
  rows.insert(rows.end(), std::begin(section), std::end(section));
  block("Reservoir Profile Map", rows);
  block("Fence Map", rows);
  rows.push_back({"MapHVRatio", "3"});
  rows.push_back({"RulerTickLength", "7"});
  block("Multi-well Correlation Map", rows);
  rows.assign(std::begin(common), std::end(common));
  rows.insert(rows.end(), std::begin(wellloc), std::end(wellloc));
  block("Well Location Map", rows);
  return s;
}

std::vector<String> Values(const FieldTexts& fields) {
  std::vector<String> v;
  for (const FieldText& f : fields) v.push_back(f.value);
  return v;
}

const char* const kKinds[] = {"Well Location Map", "Reservoir Profile Map", "Fence Map", "Multi-well Correlation Map"};

std::vector<FieldTexts> Kinds(char lang) {
  std::vector<FieldTexts> all;
  for (const char* kind : kKinds) all.push_back(sDescribeMapKind(Named(kind, lang)));
  return all;
}

// The four kinds read from a script; their four streams one after the
// other; those streams read back.
void ReadKinds(CCfgScript& script) {
  sCfgReadMapWellLoc(script);
  sCfgReadMapReserv(script);
  sCfgReadMapFence(script);
  sCfgReadMapCorrel(script);
}
std::string WriteKinds() {
  CFFArchive out;
  for (String (*write)(CFFArchive&) : {sCfgWriteMapWellLoc, sCfgWriteMapReserv, sCfgWriteMapFence, sCfgWriteMapCorrel})
    EXPECT_EQ(write(out), "");
  return mapcfg_test::Bytes(out);
}
void ReadKinds(const std::string& bytes) {
  CFFArchive in;
  mapcfg_test::Loaded(in, bytes);
  using Reader = String (*)(CFFArchive&, uint32_t);
  for (Reader read : {Reader(sCfgReadMapWellLoc), Reader(sCfgReadMapReserv), Reader(sCfgReadMapFence),
                      Reader(sCfgReadMapCorrel)})
    EXPECT_EQ(read(in, 0xFFFFFFFFu), "");
}

// Every field of the kinds came back, but for the two perforation texts of
// the section maps, which live in scripts only.
bool ScriptOnly(const String& name) { return name == "mapProp.PerforationPlug" || name == "mapProp.PerforationUnplug"; }
void ExpectSameKinds(const std::vector<FieldTexts>& back, const std::vector<FieldTexts>& want) {
  for (size_t k = 0; k < want.size(); ++k)
    EXPECT_EQ(mapcfg_test::Lines(back[k], ScriptOnly), mapcfg_test::Lines(want[k], ScriptOnly)) << kKinds[k];
}

TEST(MapKinds, ReadInEitherLanguageAndThroughTheirStreams) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  std::vector<FieldTexts> english;
  for (char lang : {0, 1}) {
    *sGetCfgLang() = lang;
    sCfgClearPlate();
    const std::vector<FieldTexts> defaults = Kinds(lang);
    CCfgScript script;
    script.Open(dir.Write("kinds.cfg", Script(lang)).c_str(), 0);
    ReadKinds(script);
    const std::vector<FieldTexts> read = Kinds(lang);
    // Every kind changed from its defaults, and the kinds keep apart.
    for (size_t k = 0; k < read.size(); ++k) {
      ASSERT_FALSE(read[k].empty()) << kKinds[k];
      size_t changed = 0;
      for (size_t f = 0; f < read[k].size() && f < defaults[k].size(); ++f) changed += read[k][f].value != defaults[k][f].value;
      EXPECT_GE(changed, 10u) << kKinds[k];
    }
    EXPECT_NE(Values(read[1]), Values(read[3]));  // the correlation map has rows of its own
    if (lang == 0) english = read;
    // The same script in Chinese reads to the same records, texts apart.
    if (lang == 1) {
      for (size_t k = 0; k < read.size(); ++k) EXPECT_EQ(read[k].size(), english[k].size()) << kKinds[k];
    }

    // The four streams, one after the other, read back field by field.
    const std::string bytes = WriteKinds();
    sCfgClearPlate();
    ReadKinds(bytes);
    ExpectSameKinds(Kinds(lang), read);
    EXPECT_EQ(WriteKinds(), bytes);

    // A stream cut short stops with the archive's error; what came before
    // the cut is read.
    sCfgClearPlate();
    CFFArchive cut;
    mapcfg_test::Loaded(cut, bytes.substr(0, 60));
    EXPECT_EQ(sCfgReadMapWellLoc(cut, 0xFFFFFFFFu), sGetInfoStr(838));
    EXPECT_EQ(sDescribeMapKind(Named("Well Location Map", lang))[0].value, read[0][0].value);
  }
  EXPECT_TRUE(sDescribeMapKind("No such map").empty());
  EXPECT_EQ(sCfgGetLayersPropPtr("Fence Map"), nullptr);  // an English name while Chinese is in force
}

// The four kinds of the example configuration, byte for byte as their
// streams were first written (tests/data/archive/kinds_en.arc): the layouts
// are a file format, and a change must be guarded by a new version.
TEST(MapKinds, ExampleStreamsAreTheGoldenFile) {
  mapcfg_test::StoreGuard guard;
  *sGetCfgLang() = 0;
  sCfgClearPlate();
  CCfgScript script;
  script.Open(MAPCFG_EXAMPLES "/en/field.cfg", 0);
  ReadKinds(script);
  EXPECT_EQ(WriteKinds(), mapcfg_test::ReadAll(MAPCFG_TEST_DATA "/archive/kinds_en.arc"));
}

// The keys a kind's readers take are exactly those sDescribeMapKindKeys
// lists (the tool's unknown-key check trusts that list): every configuration
// string, set in each kind's block, changes that kind's records if and only
// if the list holds it (or a string of the same text), in both languages.
TEST(MapKinds, KeyListsAreTheKeysTheReadersTake) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  const auto folded = mapcfg_test::Folded;
  for (char lang : {0, 1}) {
    *sGetCfgLang() = lang;
    std::vector<std::vector<String>> listed;  // per kind, folded key texts
    for (const char* kind : kKinds) {
      std::vector<String> texts;
      for (int row : sDescribeMapKindKeys(Named(kind, lang))) texts.push_back(folded(sGetCfgStr(lang, row)));
      EXPECT_GE(texts.size(), 40u) << kind;
      listed.push_back(texts);
    }
    // Every kind's block holds one curve (so that a fill has a curve to
    // go to) and then the key under test.
    const auto read = [&](const String& extra) {
      String text;
      for (const char* kind : kKinds)
        text += "Config: " + Named(kind, lang) + "\nBegin\n" + Named("Curve", lang) + " = 2\n" + extra + "End\n";
      sCfgClearPlate();
      CCfgScript script;
      script.Open(dir.Write("keys.cfg", text).c_str(), 0);
      ReadKinds(script);
      std::vector<std::vector<String>> kinds;
      for (const FieldTexts& k : Kinds(lang)) kinds.push_back(Values(k));
      return kinds;
    };
    const auto base = read("");
    for (int row = 0; row < kCfgStrCount; ++row) {
      const String key = sGetCfgStr(lang, row);
      if (!mapcfg_test::CanBeKey(key)) continue;
      const auto two = read(key + " = 2\n"), seven = read(key + " = 7\n");
      for (size_t k = 0; k < base.size(); ++k) {
        const bool taken = two[k] != base[k] || seven[k] != base[k];
        const bool in_list =
            std::find(listed[k].begin(), listed[k].end(), folded(key)) != listed[k].end();
        EXPECT_EQ(taken, in_list) << kKinds[k] << ", language " << int(lang) << ", key \"" << key << "\" (row "
                                  << row << ")";
      }
    }
  }
}

// Every record of a kind set to random values: the records the kind's
// stream holds, through the getters hosts use.
void Randomize(mapcfg_test::RecordRandomizer& r, const String& kind) {
  r("layers", *sCfgGetLayersPropPtr(kind));
  r("space", *sCfgGetHVSpacePropPtr(kind));
  r("frame", *sCfgGetMapFramePropPtr(kind));
  r("legend", *sCfgGetLegendPropPtr(kind));
  r("scale", *sCfgGetScalePropPtr(kind));
  if (kind == sGetCfgStr(*sGetCfgLang(), 338)) {  // the well location map
    r("autoParm", *sCfgGetJWTAutoParmPtr());
    r("mapProp", *sCfgGetJWTMapPropPtr());
    r("oldProd", *sCfgGetOldProdPropPtr());
    r("oldTest", *sCfgGetOldTestPropPtr());
    return;
  }
  r("curves", *sCfgGetCurveParmsPtr(kind));
  r("autoParm", *sCfgGetPMTAutoParmPtr(kind));
  r("mapProp", *sCfgGetPMTMapPropPtr(kind));
  r("bodyProp", *sCfgGetPMTBodyPropPtr(kind));
  if (_PMTLableProp* label = sCfgGetPMTLabelPropPtr(kind)) r("labelProp", *label);
  if (char* model = sCfgGetPMTModelPropPtr(kind)) r("modelFlag", *model);
  r("faultLine", *sCfgGetPMTFaultPropPtr(kind));
  r("diviLine", *sCfgGetPMTDiviPropPtr(kind));
}

// Seeded random records of all four kinds, in either language, written as
// their streams and read back: every field the describer names comes back,
// and writing again gives the same bytes.
TEST(MapKinds, RandomRecordsComeBackThroughTheStreams) {
  mapcfg_test::StoreGuard guard;
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const char lang = static_cast<char>(seed % 2);
    *sGetCfgLang() = lang;
    sCfgClearPlate();
    std::mt19937 rng(seed);
    mapcfg_test::RecordRandomizer randomizer(rng, 4);
    for (const char* kind : kKinds) Randomize(randomizer, Named(kind, lang));
    const std::vector<FieldTexts> before = Kinds(lang);

    const std::string bytes = WriteKinds();
    sCfgClearPlate();
    ReadKinds(bytes);
    ExpectSameKinds(Kinds(lang), before);
    EXPECT_EQ(WriteKinds(), bytes);
  }
}

}  // namespace
