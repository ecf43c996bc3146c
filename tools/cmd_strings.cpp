// mapcfg strings: the configuration strings (block and key names) and the
// shape help rows, by index, in English and Chinese side by side, so that a
// script author can find a name in the other language.
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "commands.h"
#include "display_text.h"

namespace mapcfg_tool {

namespace {

struct Options {
  bool help_rows = false;
  bool raw = false;
  int lang = -1;  // -1 both, 0 English, 1 Chinese
  bool has_index = false;
  int index = 0;
  bool has_find = false;
  std::string find;
};

std::string Text(const Options& o, int lang, int index) {
  return o.help_rows ? mapcfg::sGetHelpStr(static_cast<char>(lang), index)
                     : mapcfg::sGetCfgStr(static_cast<char>(lang), index);
}

// Prints entry `index` if it matches --find (in either language, whatever
// --lang shows); returns whether it was printed.
bool PrintEntry(const Options& o, int index) {
  const std::string en = ToDisplay(Text(o, 0, index), o.raw);
  const std::string zh = ToDisplay(Text(o, 1, index), o.raw);
  if (o.has_find) {
    const std::string needle = Folded(o.find);
    const bool hit =
        Folded(en).find(needle) != std::string::npos || Folded(zh).find(needle) != std::string::npos;
    if (!hit) return false;
  }
  if (o.lang == 0) {
    std::printf("%d\t%s\n", index, en.c_str());
  } else if (o.lang == 1) {
    std::printf("%d\t%s\n", index, zh.c_str());
  } else {
    std::printf("%d\t%s\t%s\n", index, en.c_str(), zh.c_str());
  }
  return true;
}

bool ParseIndex(const std::string& text, int& index) {
  if (text.empty() || text.size() > 9) return false;
  for (char c : text)
    if (c < '0' || c > '9') return false;
  index = std::atoi(text.c_str());
  return true;
}

}  // namespace

int RunStrings(const Call& call) {
  Options o;
  o.help_rows = call.Has("--help-rows");
  o.raw = call.Has("--raw");
  if (call.Has("--lang")) {
    const std::string& l = call.Value("--lang");
    if (l == "en") {
      o.lang = 0;
    } else if (l == "zh") {
      o.lang = 1;
    } else {
      return UsageError("--lang takes en or zh, not '" + NameToDisplay(l) + "'");
    }
  }
  if (call.Has("--find")) {
    o.find = call.Value("--find");
    o.has_find = true;
  }
  if (!call.operands.empty()) {
    if (!ParseIndex(call.operands[0], o.index))
      return UsageError("INDEX is a number, not '" + NameToDisplay(call.operands[0]) + "'");
    o.has_index = true;
  }
  if (o.has_index && o.has_find) return UsageError("give INDEX or --find, not both");

  const int count = o.help_rows ? mapcfg::kHelpStrCount : mapcfg::kCfgStrCount;
  const char* what = o.help_rows ? "help row" : "configuration string";
  if (o.has_index) {
    if (o.index >= count)
      return Fail(1, std::string("no ") + what + " " + std::to_string(o.index) + " (0 to " +
                         std::to_string(count - 1) + ")");
    PrintEntry(o, o.index);
    return 0;
  }
  bool any = false;
  for (int i = 0; i < count; ++i) any = PrintEntry(o, i) || any;
  if (!any) return Fail(1, std::string("no ") + what + " contains '" + NameToDisplay(o.find) + "'");
  return 0;
}

}  // namespace mapcfg_tool
