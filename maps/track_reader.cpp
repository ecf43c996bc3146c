// Single-well templates from a script: the track reader, the templates the
// block "SingleWellTemplate" lists, and the findings a linter wants about
// the same walk. One walk serves the reader and the checker, so that both
// meet the tracks, and the limits, alike.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

#include "base/text_bytes.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/maps.h"
#include "mapcfg/script.h"
#include "store/config_strings.h"
#include "store/key_table.h"
#include "store/script_fields.h"

namespace mapcfg {

namespace {

// `from` cut to the fixed name field `to`.
template <size_t N>
void CopyName(char (&to)[N], const String& from) {
  detail::CopyFixed(detail::FixedText{to, N}, from);
}

// Positions of a track value.
constexpr int kTrackPositions = 28;
// Right equal to Left within this is widened by 1.
constexpr double kSameEdge = 0.0000005;

void ParseTrackValue(const String& value, _DJTTrackProp& p) {
  String at[kTrackPositions];
  detail::ValueFields f(value);
  for (String& position : at) position = f.Text(',');
  p.Name = at[0];
  p.Title = at[1];
  sNewLnStrToAct(p.Name);
  sNewLnStrToAct(p.Title);
  p.Left = sToDouble(at[2]);
  p.Right = sToDouble(at[3]);
  p.Width = sToDouble(at[4]);
  if (std::abs(p.Right - p.Left) < kSameEdge) p.Right += 1.0;
  if (p.Width <= 0.0) p.Width = p.Right - p.Left;
  p.Flags = static_cast<uint8_t>(sToDWord(at[5]));
  p.Int1 = std::min(sToInteger(at[6]), 100);
  p.Int2 = std::clamp(sToInteger(at[7]), 1, 5);
  p.Int3 = sToInteger(at[8]);
  p.Int4 = std::min(sToInteger(at[23]), 100);
  p.Int5 = sToInteger(at[24]);
  const auto line = [&at](LINE_PROP& l, int first) {
    CopyName(l.style, at[first]);
    l.width = sToFloat(at[first + 1]);
    l.color = sToDWord(at[first + 2]);
  };
  line(p.Line1, 9);
  line(p.Line2, 12);
  line(p.Line3, 25);
  for (FONT_PROP* font : {&p.Font1, &p.Font2, &p.Font3}) sInitFontProp(font);
  CopyName(p.Font1.faceName, at[15]);
  p.Font1.height = sToFloat(at[16]);
  p.Font1.color = sToDWord(at[17]);
  CopyName(p.Font2.faceName, at[18]);
  p.Font2.height = sToFloat(at[19]);
  p.Font2.color = sToDWord(at[20]);
  p.Font2.fWidth = sToFloat(at[21]);
  std::memcpy(p.Font3.faceName, p.Font2.faceName, sizeof p.Font3.faceName);
  p.Font3.height = sToFloat(at[22]);
}

// The child tracks of a track or the top-level tracks of a template.
RecordArray<_DJTTrack>& Kids(_DJTTrack& t) { return t.Children; }
RecordArray<_DJTTrack>& Kids(_DJTTempl& t) { return t.Tracks; }

// One read of track trees from a script, with the budgets its tracks share.
// The sink does what the read is for: the reader builds tracks, the checker
// collects findings. For each key of a block that is a track, the walk
// calls sink.Child(walk, block, index, key, parent, level); the sink reads
// the child and calls walk.Inside for its own block.
template <class Sink>
class TrackWalk {
 public:
  TrackWalk(const CCfgScript& script, Sink& sink) : script_(script), sink_(sink), curve_(cfg::Name(cfg::kCurve)) {}

  const CCfgScript& script() const { return script_; }

  // Counts a track whose block is `block` against the budgets: false, and
  // nothing more is read, once one is spent.
  bool Admit(const String& block) {
    if (stopped_) return false;
    const int rows = std::max(script_.GetKeyCnt(block.c_str()), 0);
    if (tracks_ >= kMaxTrackCount || rows > kMaxTrackRows - rows_) {
      stopped_ = true;
      return false;
    }
    ++tracks_;
    rows_ += rows;
    return true;
  }

  // The tracks the keys of `block` name, below `parent` at `level` (0 for a
  // template), "Curve" keys skipped.
  template <class Parent>
  void Inside(const String& block, Parent& parent, int level) {
    const int count = script_.GetKeyCnt(block.c_str());
    for (int i = 0; i < count && !stopped_; ++i) {
      const String key = script_.GetKeyName(block.c_str(), i);
      if (detail::EqualsNoCase(key, curve_.c_str())) continue;
      if (level >= kMaxTrackDepth) {
        sink_.Cut(DJTTreeFinding::kTooDeep, block, i, key, level + 1);
        return;
      }
      if (!Admit(key)) {
        sink_.Cut(DJTTreeFinding::kTooMany, block, i, key, level + 1);
        return;
      }
      sink_.Child(*this, block, i, key, parent, level + 1);
    }
  }

 private:
  const CCfgScript& script_;
  Sink& sink_;
  const String curve_;
  int tracks_ = 0;
  int rows_ = 0;
  bool stopped_ = false;
};

// Builds the tracks.
struct Reader {
  CCfgScript& script;
  float arg;

  // The curves and children of `track`, whose value is read already.
  void Fill(TrackWalk<Reader>& walk, const String& block, _DJTTrack& track, int level) {
    sCfgReadCurveParms(script, block, track.Curves, arg);
    walk.Inside(block, track, level);
  }
  template <class Parent>
  void Child(TrackWalk<Reader>& walk, const String& block, int index, const String& key, Parent& parent, int level) {
    auto child = std::make_unique<_DJTTrack>();
    ParseTrackValue(script.GetKeyVal(block.c_str(), index), child->Prop);
    Fill(walk, key, *child, level);
    Kids(parent).push_back(std::move(child));
  }
  void Cut(DJTTreeFinding::Kind, const String&, int, const String&, int) {}
};

// The templates the script lists: the default one first, then each
// "Template" key in key order, a name repeated (case ignored) once.
struct Listed {
  String name;
  int key;  // its key in the list block
};
std::vector<Listed> ListTemplates(const CCfgScript& script) {
  const String block = cfg::Name(cfg::kSingleWellTemplate);
  const String deflt = cfg::Name(cfg::kDefaultTemplate), templ = cfg::Name(cfg::kTemplate);
  std::vector<Listed> listed;
  const auto add = [&listed](const String& name, int key) {
    if (name.empty()) return;
    for (const Listed& l : listed)
      if (detail::EqualsNoCase(l.name, name.c_str())) return;
    listed.push_back({name, key});
  };
  const int count = script.GetKeyCnt(block.c_str());
  for (int pass = 0; pass < 2; ++pass)
    for (int i = 0; i < count; ++i) {
      const String key = script.GetKeyName(block.c_str(), i);
      if (detail::EqualsNoCase(key, (pass == 0 ? deflt : templ).c_str())) {
        add(script.GetKeyVal(block.c_str(), i), i);
        if (pass == 0) break;  // the first default counts
      }
    }
  return listed;
}

// Collects the findings.
class Checker {
 public:
  explicit Checker(std::vector<DJTTreeFinding>& out) : out_(out) {}

  void Template(TrackWalk<Checker>& walk, const Listed& t) {
    if (walk.script().GetKeyCnt(t.name.c_str()) < 0)
      Add({DJTTreeFinding::kNoBlock, cfg::Name(cfg::kSingleWellTemplate), t.key, t.name, 0});
    path_.assign(1, Fold(t.name));
    int none = 0;
    walk.Inside(t.name, none, 0);
  }
  template <class Parent>
  void Child(TrackWalk<Checker>& walk, const String& block, int index, const String& key, Parent&, int level) {
    const String folded = Fold(key);
    if (std::find(path_.begin(), path_.end(), folded) != path_.end())
      Add({DJTTreeFinding::kNamesAncestor, block, index, key, level});
    if (walk.script().GetKeyCnt(key.c_str()) < 0) Add({DJTTreeFinding::kNoBlock, block, index, key, level});
    path_.push_back(folded);
    int none = 0;
    walk.Inside(key, none, level);
    path_.pop_back();
  }
  void Cut(DJTTreeFinding::Kind kind, const String& block, int index, const String& key, int level) {
    Add({kind, block, index, key, level});
  }

 private:
  static String Fold(String s) {
    for (char& c : s) c = detail::FoldAscii(c);
    return s;
  }
  void Add(DJTTreeFinding f) {
    if (seen_.insert({f.kind, Fold(f.block), f.key}).second) out_.push_back(std::move(f));
  }
  std::vector<DJTTreeFinding>& out_;
  std::vector<String> path_;  // folded block names from the template down
  std::set<std::tuple<int, String, int>> seen_;
};

}  // namespace

void sCfgReadDJTTrack(CCfgScript& script, const String& block, const String& value, _DJTTrack* track, float arg) {
  if (!track) return;
  ParseTrackValue(value, track->Prop);
  Reader reader{script, arg};
  TrackWalk<Reader> walk(script, reader);
  if (walk.Admit(block)) reader.Fill(walk, block, *track, 1);
}

void sCfgReadMapSingle(CCfgScript& script) {
  const String kind = cfg::Name(cfg::kSingleWellMap);
  const float ratio = sCfgReadLayersProp(script, kind, sCfgGetLayersPropPtr(kind));
  sCfgReadHVSpaceProp(script, kind, sCfgGetHVSpacePropPtr(kind));
  sCfgReadDJTMapProp(script, sCfgGetDJTMapPropPtr());
  Reader reader{script, ratio};
  TrackWalk<Reader> walk(script, reader);
  _CfgMapSingle& registry = *sCfgGetMapSinglePtr();
  for (const Listed& t : ListTemplates(script)) {
    auto templ = std::make_unique<_DJTTempl>();
    templ->Name = t.name;
    sInitLineProp(&templ->Line);
    sInitFontProp(&templ->Font);
    walk.Inside(t.name, *templ, 0);
    registry.Names.push_back(t.name);
    registry.Templs.push_back(std::move(templ));
  }
}

std::vector<DJTTreeFinding> sCfgCheckMapSingle(const CCfgScript& script) {
  std::vector<DJTTreeFinding> findings;
  Checker checker(findings);
  TrackWalk<Checker> walk(script, checker);
  for (const Listed& t : ListTemplates(script)) checker.Template(walk, t);
  return findings;
}

}  // namespace mapcfg
