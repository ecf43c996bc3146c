// mapcfg script: what the library reads from a script.
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <map>
#include <memory>

#include "commands.h"
#include "display_text.h"

namespace mapcfg_tool {

namespace {

// Prints every block by index; a block whose name repeats an earlier one is
// marked, since lookups by name never reach it.
void PrintAll(const mapcfg::CCfgScript& script, bool raw) {
  std::map<std::string, int> first;
  for (int b = 0; b < script.GetCfgCnt(); ++b) {
    const std::string name = script.GetCfgName(b);
    const auto seen = first.emplace(Folded(name), b);
    std::string note;
    if (!seen.second) note = "  (same name as block " + std::to_string(seen.first->second) + ": unreachable by name)";
    std::printf("[%d] Config: %s%s\n", b, ToDisplay(name, raw).c_str(), note.c_str());
    for (int k = 0; k < script.GetKeyCntAt(b); ++k)
      std::printf("    %s = %s\n", ToDisplay(script.GetKeyNameAt(b, k), raw).c_str(),
                  ToDisplay(script.GetKeyValAt(b, k), raw).c_str());
  }
}

}  // namespace

int RunScript(const Args& args) {
  std::string file;
  std::string block;
  bool raw = false;
  bool has_block = false;
  for (size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--raw") {
      raw = true;
    } else if (args[i] == "--block") {
      if (i + 1 >= args.size()) return Fail(2, "--block needs a block name");
      block = args[++i];
      has_block = true;
    } else if (!args[i].empty() && args[i][0] == '-') {
      return Fail(2, "unknown option '" + args[i] + "'");
    } else if (file.empty()) {
      file = args[i];
    } else {
      return Fail(2, "script takes one file");
    }
  }
  if (file.empty()) return Fail(2, "usage: mapcfg script FILE [--block NAME] [--raw]");
  if (!CanRead(file)) return Fail(1, "cannot read " + file);

  mapcfg::CCfgScript script;
  script.Open(file.c_str(), 0);
  if (has_block) {
    const int count = script.GetKeyCnt(block.c_str());
    if (count < 0) return Fail(1, "no block named '" + block + "' in " + file);
    for (int b = 0; b < script.GetCfgCnt(); ++b)
      if (Folded(script.GetCfgName(b)) == Folded(block)) {
        std::printf("[%d] Config: %s\n", b, ToDisplay(script.GetCfgName(b), raw).c_str());
        break;
      }
    for (int k = 0; k < count; ++k)
      std::printf("  %s = %s\n", ToDisplay(script.GetKeyName(block.c_str(), k), raw).c_str(),
                  ToDisplay(script.GetKeyVal(block.c_str(), k), raw).c_str());
    return 0;
  }
  PrintAll(script, raw);
  return 0;
}

}  // namespace mapcfg_tool
