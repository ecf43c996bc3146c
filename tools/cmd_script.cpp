// mapcfg script: what the library reads from a script.
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <map>
#include <vector>

#include "commands.h"
#include "display_text.h"
#include "input.h"

namespace mapcfg_tool {

namespace {

// Stops the read at an included file that is not a regular file.
struct Guard : mapcfg::ScriptEvents {
  void OnFileBegin(const std::string& file, int depth) override {
    if (depth > 1) StopUnlessRegular(file);
  }
};

// Index of the first block named `name` (as the library's lookups find it),
// trying the name as typed, then converted from UTF-8 to GBK; -1 if none.
int FindBlock(const mapcfg::CCfgScript& script, const std::string& name) {
  std::string gbk;
  for (const std::string& n : {name, Utf8ToGbk(name, &gbk) ? gbk : name}) {
    if (script.GetKeyCnt(n.c_str()) < 0) continue;
    for (int b = 0; b < script.GetCfgCnt(); ++b)
      if (Folded(script.GetCfgName(b)) == Folded(n)) return b;
  }
  return -1;
}

void PrintBlock(const mapcfg::CCfgScript& script, int b, int same_as, bool raw) {
  std::string note;
  if (same_as >= 0) note = "  (same name as block " + std::to_string(same_as) + ": unreachable by name)";
  std::printf("[%d] Config: %s%s\n", b, ToDisplay(script.GetCfgName(b), raw).c_str(), note.c_str());
  for (int k = 0; k < script.GetKeyCntAt(b); ++k)
    std::printf("    %s = %s\n", ToDisplay(script.GetKeyNameAt(b, k), raw).c_str(),
                ToDisplay(script.GetKeyValAt(b, k), raw).c_str());
}

void PrintBlockJson(const mapcfg::CCfgScript& script, int b, int same_as, bool last) {
  std::printf("  {\"index\": %d, \"name\": %s, \"same_name_as\": %s, \"keys\": [", b,
              ToJson(script.GetCfgName(b)).c_str(), same_as >= 0 ? std::to_string(same_as).c_str() : "null");
  for (int k = 0; k < script.GetKeyCntAt(b); ++k)
    std::printf("%s{\"key\": %s, \"value\": %s}", k ? ", " : "", ToJson(script.GetKeyNameAt(b, k)).c_str(),
                ToJson(script.GetKeyValAt(b, k)).c_str());
  std::printf("]}%s\n", last ? "" : ",");
}

}  // namespace

int RunScript(const Call& call) {
  const bool raw = call.Has("--raw");
  const bool json = call.Has("--json");
  if (raw && json) return UsageError("--raw and --json exclude each other");
  const std::string& file = call.operands[0];
  ScriptInput input;
  std::string why;
  if (!input.Open(file, &why)) return Fail(1, "cannot read " + NameToDisplay(file) + ": " + why);

  mapcfg::CCfgScript script;
  Guard guard;
  try {
    script.Open(input.path().c_str(), 0, &guard);
  } catch (const ReadStopped& e) {
    return Fail(1, NameToDisplay(input.Shown(e.included)) + " is " + e.what() + ": reading stopped there");
  }

  // The blocks to show, each with the earlier block of the same name.
  std::vector<std::pair<int, int>> shown;
  std::map<std::string, int> first;
  for (int b = 0; b < script.GetCfgCnt(); ++b) {
    const auto seen = first.emplace(Folded(script.GetCfgName(b)), b);
    shown.emplace_back(b, seen.second ? -1 : seen.first->second);
  }
  if (call.Has("--block")) {
    const int b = FindBlock(script, call.Value("--block"));
    if (b < 0)
      return Fail(1, "no block named '" + NameToDisplay(call.Value("--block")) + "' in " + NameToDisplay(input.Shown(input.path())));
    shown = {shown[static_cast<size_t>(b)]};
  }
  if (!json) {
    for (const auto& s : shown) PrintBlock(script, s.first, s.second, raw);
    return 0;
  }
  std::printf("{\"file\": %s, \"blocks\": [\n", NameToJson(input.Shown(input.path())).c_str());
  for (size_t i = 0; i < shown.size(); ++i) PrintBlockJson(script, shown[i].first, shown[i].second, i + 1 == shown.size());
  std::printf("]}\n");
  return 0;
}

}  // namespace mapcfg_tool
