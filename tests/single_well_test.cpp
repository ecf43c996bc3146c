// Single-well chart templates: the track value, trees of track blocks and
// their limits, the template list in both languages, the single-well stream
// and a seeded round trip of random template trees. The records' bytes are
// golden streams in tests/data/archive/records.hex.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "archive_test_util.h"
#include "store_test_util.h"
#include "test_util.h"

using namespace mapcfg;

namespace {

// Rows of the configuration string table.
enum Row {
  kPerforation = 10, kRlev = 67, kCurve = 101, kSingleWellTemplate = 112, kDefaultTemplate = 114, kTemplate = 117,
  kEffective2 = 122, kEffective1 = 137, kPatternRatio = 193, kPlug = 343, kSingleWellMap = 347,
};

// A script of blocks, each a name and its key rows.
using Block = std::pair<std::string, std::vector<std::pair<std::string, std::string>>>;

void Open(CCfgScript& script, const mapcfg_test::TempDir& dir, const std::vector<Block>& blocks) {
  std::string text;
  for (const auto& [name, rows] : blocks) {
    text += "Config: " + name + "\nBegin\n";
    for (const auto& [key, value] : rows) text += key + " = " + value + "\n";
    text += "End\n";
  }
  script.Open(dir.Write("single.cfg", text).c_str(), 0);
}

std::map<std::string, std::string> Named(const FieldTexts& fields) {
  std::map<std::string, std::string> m;
  for (const FieldText& f : fields) m[f.name] = f.value;
  return m;
}

// Every field of a tree, nested records named by their path.
void Flatten(const _DJTTrack& t, const std::string& at, FieldTexts& out) {
  for (FieldText f : sDescribe(t.Prop)) out.push_back({at + f.name, f.value, f.kind});
  for (size_t i = 0; i < t.Curves.size(); ++i)
    for (FieldText f : sDescribe(*t.Curves[i])) out.push_back({at + "c" + std::to_string(i) + "." + f.name, f.value, f.kind});
  for (size_t i = 0; i < t.Children.size(); ++i) Flatten(*t.Children[i], at + std::to_string(i) + ".", out);
}

// Tracks of a tree and its depth (the track itself is level 1).
std::pair<size_t, int> Size(const _DJTTrack& t) {
  size_t count = 1;
  int depth = 0;
  for (const auto& k : t.Children) {
    const auto [n, d] = Size(*k);
    count += n;
    depth = std::max(depth, d);
  }
  return {count, depth + 1};
}

TEST(SingleWell, TrackValuePositionsClampsAndLineBreaks) {
  mapcfg_test::StoreGuard guard;
  const auto unescaped = [](const std::string& text) {
    std::string s;
    for (size_t i = 0; i < text.size(); ++i)
      s += text[i] != '\\' || ++i == text.size() ? text[i] : text[i] == 'r' ? '\r' : text[i] == 'n' ? '\n' : text[i];
    return s;
  };
  const auto cases = mapcfg_test::ReadRows("track_values.txt");
  ASSERT_EQ(cases.size(), 12u);
  for (const std::vector<std::string>& c : cases) {
    SCOPED_TRACE(c.at(0));
    _DJTTrack track;
    track.Prop.Dbl1 = 0;
    CCfgScript none;
    sCfgReadDJTTrack(none, "no block", c.at(0), &track, 1.0f);
    const auto fields = Named(sDescribe(track.Prop));
    std::istringstream want(unescaped(c.at(1)));
    for (std::string pair; std::getline(want, pair, ';');)
      EXPECT_EQ(fields.at(pair.substr(0, pair.find('='))), pair.substr(pair.find('=') + 1)) << pair;
    EXPECT_TRUE(track.Curves.empty() && track.Children.empty());
  }
}

TEST(SingleWell, ChildrenInKeyOrderWithCurvesAndCurveKeysSkipped) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  for (char lang : {0, 1}) {
    *sGetCfgLang() = lang;
    const std::string curve = sGetCfgStr(lang, kCurve);
    CCfgScript script;
    Open(script, dir,
         {{"Logs",
           {{curve, "SP; Spontaneous potential; -40; 20; ; 0.3; 0000FF"},
            {"Resistivity", "Res, Resistivity, 0, 2"},
            {lang ? curve : "CURVE", "GR; Gamma; 0; 150"},
            {"Porosity", "Por, Porosity, 0, 1"}}},
          {"Resistivity", {{curve, "RT; Deep; 1; 100"}, {curve, "RXO; Shallow; 1; 100"}}}});
    _DJTTrack track;
    sCfgReadDJTTrack(script, "logs", "Logs, Logs, 0, 1", &track, 2.0f);
    ASSERT_EQ(track.Curves.size(), 2u);
    EXPECT_EQ(track.Curves[0]->Code, "SP");
    EXPECT_EQ(track.Curves[1]->Code, "GR");
    ASSERT_EQ(track.Children.size(), 2u);
    EXPECT_EQ(track.Children[0]->Prop.Name, "Res");
    EXPECT_EQ(track.Children[0]->Curves.size(), 2u);  // only "Curve" keys: no children
    EXPECT_TRUE(track.Children[0]->Children.empty());
    EXPECT_EQ(track.Children[1]->Prop.Name, "Por");  // no block: no curves, no children
    EXPECT_TRUE(track.Children[1]->Curves.empty() && track.Children[1]->Children.empty());
    sCfgDelDJTTrack(track.Children.back().release());
    track.Children.pop_back();
  }
}

TEST(SingleWell, BlocksNamingThemselvesOrFanningOutStopAtTheLimits) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  *sGetCfgLang() = 0;
  std::vector<std::pair<std::string, std::string>> fan(2, {"Fan", "F, , 0, 1"});
  std::vector<std::pair<std::string, std::string>> wide(1000, {"Curve", "C; c; 0; 1"});
  wide.insert(wide.end(), 3, {"Wide", "W, , 0, 1"});
  CCfgScript script;
  Open(script, dir, {{"Self", {{"self", "S, , 0, 1"}}}, {"Fan", fan}, {"Wide", wide},
                     {"SingleWellTemplate", {{"Template", "T1"}, {"Template", "T2"}}},
                     {"T1", {{"Fan", "F, , 0, 1"}}}, {"T2", {{"Fan", "F, , 0, 1"}}}});
  // A block naming itself: 256 levels, one track each.
  _DJTTrack self;
  sCfgReadDJTTrack(script, "Self", "S, , 0, 1", &self, 1.0f);
  EXPECT_EQ(Size(self), std::make_pair(size_t{256}, kMaxTrackDepth));
  // A fan-out of blocks: 65,536 tracks in all (the first branch goes down
  // to the depth limit).
  _DJTTrack fanned;
  sCfgReadDJTTrack(script, "Fan", "F, , 0, 1", &fanned, 1.0f);
  EXPECT_EQ(Size(fanned).first, size_t{kMaxTrackCount});
  // Many curves in a block many tracks read: the rows visited stop it.
  _DJTTrack wided;
  sCfgReadDJTTrack(script, "Wide", "W, , 0, 1", &wided, 1.0f);
  const size_t tracks = Size(wided).first;
  EXPECT_EQ(tracks, size_t{kMaxTrackRows / 1003});
  // The templates of one read share the budget.
  sCfgReadMapSingle(script);
  const _CfgMapSingle& registry = *sCfgGetMapSinglePtr();
  ASSERT_EQ(registry.Templs.size(), 2u);
  size_t total = 0;
  for (const auto& t : registry.Templs)
    for (const auto& top : t->Tracks) total += Size(*top).first;
  EXPECT_EQ(total, size_t{kMaxTrackCount});
  EXPECT_TRUE(registry.Templs[1]->Tracks.empty());
  // The checker meets the same limits, each reported once.
  std::map<std::string, int> kinds;
  for (const DJTTreeFinding& f : sCfgCheckMapSingle(script)) ++kinds[std::to_string(f.kind) + ":" + f.block];
  EXPECT_EQ(kinds, (std::map<std::string, int>{{"0:Fan", 2}, {"2:Fan", 1}, {"3:Fan", 1}}));
}

TEST(SingleWell, TemplatesListedInEitherLanguageAndFound) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  for (char lang : {0, 1}) {
    *sGetCfgLang() = lang;
    sCfgClearPlate();
    const auto s = [lang](int row) { return sGetCfgStr(lang, row); };
    CCfgScript script;
    Open(script, dir,
         {{s(kSingleWellMap), {{s(kRlev), ""}, {s(kEffective1), "-9999"}, {s(kPerforation), "Perf"}, {s(kPlug), "Plug"},
                               {s(kPatternRatio), "2"}}},
          {s(kSingleWellTemplate),
           {{s(kTemplate), "Composite"}, {s(kTemplate), "Evaluation"}, {s(kDefaultTemplate), "evaluation"},
            {s(kTemplate), "COMPOSITE"}, {s(kTemplate), "Missing"}, {s(kTemplate), ""}}},
          {"Composite", {{"Depth", "Depth, Depth, 0, 1"}, {s(kCurve), "GR; g; 0; 1"}, {"Logs", "Logs, Logs, 0, 1"}}},
          {"Evaluation", {{"Depth", "Depth, Depth, 0, 1"}}},
          {"Logs", {{s(kCurve), "GR; g; 0; 1"}, {s(0), "GR; ; Sand; 00FFFF"}}}});
    sCfgReadMapSingle(script);
    const _DJTMapProp& prop = *sCfgGetDJTMapPropPtr();
    EXPECT_EQ(prop.Rlev, 0.125);
    EXPECT_EQ(prop.EffectiveVal1, -9999);
    EXPECT_EQ(prop.EffectiveVal2, -999.25);
    EXPECT_EQ(prop.PerforationSymbol + prop.PerforationPlug + prop.PerforationUnplug, "PerfPlug");
    const _CfgMapSingle& registry = *sCfgGetMapSinglePtr();
    // The default first (as the list names it), each name once, an empty
    // one skipped, a template without a block kept without tracks.
    EXPECT_EQ(registry.Names, (StringArray{"evaluation", "Composite", "Missing"}));
    ASSERT_EQ(registry.Templs.size(), 3u);
    EXPECT_EQ(registry.Templs[1]->Name, "Composite");
    EXPECT_EQ(registry.Templs[1]->Line.width, 0.05f);
    ASSERT_EQ(registry.Templs[1]->Tracks.size(), 2u);  // the template's "Curve" key is skipped
    const _DJTTrack& logs = *registry.Templs[1]->Tracks[1];
    ASSERT_EQ(logs.Curves.size(), 1u);
    // The ratio of the layers reaches the fills; "FillingCurve" names a child.
    ASSERT_EQ(logs.Curves[0]->Fills.size(), 1u);
    EXPECT_EQ(logs.Curves[0]->Fills[0]->Patt.ratio, 2.0f);
    ASSERT_EQ(logs.Children.size(), 1u);
    EXPECT_TRUE(registry.Templs[2]->Tracks.empty());
    EXPECT_EQ(sCfgFindDJTTempl("EVALUATION"), registry.Templs[0].get());
    EXPECT_EQ(sCfgFindDJTTempl("composite"), registry.Templs[1].get());
    EXPECT_EQ(sCfgFindDJTTempl("Compo"), nullptr);
    // The checker: the missing template block, the missing "Depth" and
    // "Logs"-child blocks, in the order the reader meets them.
    std::vector<std::string> found;
    for (const DJTTreeFinding& f : sCfgCheckMapSingle(script))
      found.push_back(std::to_string(f.kind) + " " + f.block + "[" + std::to_string(f.key) + "] " + f.name);
    EXPECT_EQ(found, (std::vector<std::string>{"1 evaluation[0] Depth", "1 Composite[0] Depth",
                                               "1 Logs[1] " + s(0),
                                               "1 " + s(kSingleWellTemplate) + "[4] Missing"}));
  }
}

// The keys of "Single Well Map" that change the single-well map are exactly
// those sDescribeMapKindKeys lists (the tool's unknown-key check trusts it).
TEST(SingleWell, KeyListIsTheKeysTheReadersTake) {
  mapcfg_test::StoreGuard guard;
  mapcfg_test::TempDir dir;
  const auto folded = mapcfg_test::Folded;
  for (char lang : {0, 1}) {
    *sGetCfgLang() = lang;
    const String kind = sGetCfgStr(lang, kSingleWellMap);
    std::vector<String> listed;
    for (int row : sDescribeMapKindKeys(kind)) listed.push_back(folded(sGetCfgStr(lang, row)));
    EXPECT_EQ(listed.size(), 14u);
    const auto read = [&](const String& row) {
      sCfgClearPlate();
      CCfgScript script;
      Open(script, dir, {{kind, {{row, "2"}}}});
      sCfgReadMapSingle(script);
      std::string values;
      for (const FieldText& f : sDescribeMapKind(kind)) values += f.value + ";";
      return values;
    };
    const std::string base = read("no such key");
    for (int row = 0; row < kCfgStrCount; ++row) {
      const String key = sGetCfgStr(lang, row);
      if (!mapcfg_test::CanBeKey(key)) continue;
      const bool taken = read(key) != base;
      const bool in_list = std::find(listed.begin(), listed.end(), folded(key)) != listed.end();
      EXPECT_EQ(taken, in_list) << "language " << int(lang) << ", key \"" << key << "\" (row " << row << ")";
    }
  }
}

// Random trees of depth up to 10 and fan-out up to 8 (kept to a few hundred
// tracks), every field random.
class RandomTrees {
 public:
  explicit RandomTrees(uint32_t seed) : rng_(seed) {}
  std::unique_ptr<_DJTTempl> Templ() {
    auto t = std::make_unique<_DJTTempl>();
    t->Name = Text();
    t->Value = Int();
    for (double& d : t->Dbls) d = Real();
    Line(t->Line);
    Font(t->Font);
    for (int i = Pick(3); i > 0; --i) t->Texts.push_back(Text());
    budget_ = 300;
    for (int i = Pick(8); i > 0; --i) t->Tracks.push_back(Track(Pick(10)));
    return t;
  }

 private:
  std::unique_ptr<_DJTTrack> Track(int depth) {
    auto t = std::make_unique<_DJTTrack>();
    --budget_;
    _DJTTrackProp& p = t->Prop;
    p.Name = Text();
    p.Title = Text();
    p.Left = Real(), p.Right = Real(), p.Width = Real(), p.Dbl1 = Real(), p.Dbl2 = Real(), p.Dbl3 = Real();
    p.Flags = static_cast<uint8_t>(Int());
    p.Int1 = Int(), p.Int2 = Int(), p.Int3 = Int(), p.Int4 = Int(), p.Int5 = Int();
    for (LINE_PROP* l : {&p.Line1, &p.Line2, &p.Line3}) Line(*l);
    for (FONT_PROP* f : {&p.Font1, &p.Font2, &p.Font3}) Font(*f);
    for (int i = Pick(3); i > 0; --i) {
      auto c = std::make_unique<_CurveParm>();
      c->Code = Text(), c->Name = Text(), c->Prop.LeftValue = Real(), c->Prop.RightValue = Real();
      Line(c->Prop.Line);
      t->Curves.push_back(std::move(c));
    }
    for (int i = depth > 1 ? Pick(8) : 0; i > 0 && budget_ > 0; --i) t->Children.push_back(Track(depth - 1));
    return t;
  }
  int Pick(int most) { return std::uniform_int_distribution<int>(0, most)(rng_); }
  int32_t Int() { return static_cast<int32_t>(rng_()); }
  double Real() { return std::uniform_real_distribution<double>(-1e4, 1e4)(rng_); }
  String Text() {
    String s(static_cast<size_t>(Pick(12)), ' ');
    for (char& c : s) c = static_cast<char>(std::uniform_int_distribution<int>(1, 255)(rng_));
    return s;
  }
  void Line(LINE_PROP& l) {
    l.color = static_cast<uint32_t>(Int()), l.width = static_cast<float>(Real());
    Name(l.style, sizeof l.style);
  }
  void Font(FONT_PROP& f) {
    sInitFontProp(&f);
    f.color = static_cast<uint32_t>(Int()), f.height = static_cast<float>(Real()), f.weight = Int();
    f.flags[Pick(6)] = static_cast<uint8_t>(Int());
    Name(f.faceName, sizeof f.faceName);
  }
  void Name(char* name, size_t size) {
    const String t = Text().substr(0, size - 1);
    std::copy(t.begin(), t.end(), name);
    name[t.size()] = '\0';
  }
  std::mt19937 rng_;
  int budget_ = 0;
};

FieldTexts Flat(const RecordArray<_DJTTempl>& templs) {
  FieldTexts out;
  for (size_t i = 0; i < templs.size(); ++i) {
    const _DJTTempl& t = *templs[i];
    const std::string at = "t" + std::to_string(i) + ".";
    out.push_back({at + "Name", t.Name, FieldText::kText});
    out.push_back({at + "Value", std::to_string(t.Value), FieldText::kInteger});
    for (double d : t.Dbls) {
      char text[32];
      std::snprintf(text, sizeof text, "%.17g", d);
      out.push_back({at + "Dbl", text, FieldText::kReal});
    }
    for (FieldText f : sDescribe(t.Line)) out.push_back({at + "Line." + f.name, f.value, f.kind});
    for (FieldText f : sDescribe(t.Font)) out.push_back({at + "Font." + f.name, f.value, f.kind});
    for (const String& text : t.Texts) out.push_back({at + "Text", text, FieldText::kText});
    for (size_t k = 0; k < t.Tracks.size(); ++k) Flatten(*t.Tracks[k], at + std::to_string(k) + ".", out);
  }
  return out;
}

TEST(SingleWell, SeededRandomTreesRoundTripFieldByField) {
  mapcfg_test::StoreGuard guard;
  RandomTrees random(20261124);
  for (int round = 0; round < 40; ++round) {
    SCOPED_TRACE(round);
    RecordArray<_DJTTempl> templs;
    for (int i = 0; i < 1 + round % 3; ++i) templs.push_back(random.Templ());
    CFFArchive a;
    ASSERT_EQ(a.PutDJTTemplArray(templs), 1);
    const std::string bytes = mapcfg_test::Bytes(a);
    CFFArchive in;
    RecordArray<_DJTTempl> back;
    ASSERT_EQ(mapcfg_test::Loaded(in, bytes).GetDJTTemplArray(back, 0xFFFFFFFFu), 1);
    ASSERT_EQ(mapcfg_test::Lines(Flat(back)), mapcfg_test::Lines(Flat(templs)));
    CFFArchive again;
    again.PutDJTTemplArray(back);
    EXPECT_EQ(mapcfg_test::Bytes(again), bytes);
    sCfgDelDJTTempl(back.back().release());
    back.pop_back();
  }
}

// A chain of `levels` tracks, one below the other.
std::unique_ptr<_DJTTrack> Chain(int levels) {
  auto top = std::make_unique<_DJTTrack>();
  _DJTTrack* t = top.get();
  for (int i = 1; i < levels; ++i) {
    t->Children.push_back(std::make_unique<_DJTTrack>());
    t = t->Children.back().get();
  }
  return top;
}

TEST(SingleWell, StreamAndTheNestingLimit) {
  mapcfg_test::StoreGuard guard;
  *sGetCfgLang() = 0;
  sCfgClearPlate();
  _CfgMapSingle& registry = *sCfgGetMapSinglePtr();
  registry.Names = {"Deep"};
  registry.Templs.push_back(std::make_unique<_DJTTempl>());
  registry.Templs[0]->Name = "Deep";
  registry.Templs[0]->Tracks.push_back(Chain(kMaxTrackDepth));
  sCfgGetDJTMapPropPtr()->Rlev = 0.5;
  sCfgGetLayersPropPtr("Single Well Map")->PatternRatio = 3;
  sCfgGetHVSpacePropPtr("Single Well Map")->vSpace = 2;
  EXPECT_EQ(sCfgGetMapFramePropPtr("Single Well Map"), nullptr);
  CFFArchive a;
  ASSERT_EQ(sCfgWriteMapSingle(a), "");
  const std::string bytes = mapcfg_test::Bytes(a);
  const std::string written = mapcfg_test::Lines(sDescribeMapKind("Single Well Map"));
  sCfgClearPlate();
  CFFArchive in;
  ASSERT_EQ(sCfgReadMapSingle(mapcfg_test::Loaded(in, bytes), 0xFFFFFFFFu), "");
  EXPECT_EQ(mapcfg_test::Lines(sDescribeMapKind("Single Well Map")), written);
  EXPECT_EQ(Size(*registry.Templs[0]->Tracks[0]).second, kMaxTrackDepth);

  // One level more: nothing is written; a stream that holds one fails.
  _DJTTrack* deepest = registry.Templs[0]->Tracks[0].get();
  while (!deepest->Children.empty()) deepest = deepest->Children[0].get();
  deepest->Children.push_back(std::make_unique<_DJTTrack>());
  CFFArchive refused;
  EXPECT_EQ(sCfgWriteMapSingle(refused), sGetInfoStr(539));
  EXPECT_EQ(refused.GetCount(), 0u);
  EXPECT_EQ(refused.PutDJTTrack(registry.Templs[0]->Tracks[0].get()), 0);
  EXPECT_EQ(refused.PutDJTTrackArray(registry.Templs[0]->Tracks), 0);
  EXPECT_EQ(refused.GetCount(), 0u);
  CFFArchive leaf;
  leaf.PutDJTTrack(deepest->Children[0].get());
  // The deepest child count of the stream (its last value) becomes 1 and
  // a leaf track follows.
  std::string deeper = bytes.substr(0, bytes.size() - 4) + std::string("\x01\x00\x00\x00", 4) + mapcfg_test::Bytes(leaf);
  sCfgClearPlate();
  CFFArchive too_deep;
  EXPECT_EQ(sCfgReadMapSingle(mapcfg_test::Loaded(too_deep, deeper), 0xFFFFFFFFu), sGetInfoStr(539));
  EXPECT_EQ(registry.Names, StringArray{"Deep"});
  EXPECT_TRUE(registry.Templs.empty());  // the template that failed is dropped
}

}  // namespace
