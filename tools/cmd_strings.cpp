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

// The text as shown: UTF-8 (unless raw), with line breaks and tabs escaped
// so that every entry stays on one line.
std::string Shown(const std::string& bytes, bool raw) {
  std::string out;
  for (char c : ToDisplay(bytes, raw)) {
    if (c == '\r') {
      out += "\\r";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\t') {
      out += "\\t";
    } else {
      out += c;
    }
  }
  return out;
}

std::string Text(const Options& o, int lang, int index) {
  return o.help_rows ? mapcfg::sGetHelpStr(static_cast<char>(lang), index)
                     : mapcfg::sGetCfgStr(static_cast<char>(lang), index);
}

// Prints entry `index` if it matches --find (in either language, whatever
// --lang shows); returns whether it was printed.
bool PrintEntry(const Options& o, int index) {
  const std::string en = Shown(Text(o, 0, index), o.raw);
  const std::string zh = Shown(Text(o, 1, index), o.raw);
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

int RunStrings(const Args& args) {
  Options o;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--help-rows") {
      o.help_rows = true;
    } else if (a == "--raw") {
      o.raw = true;
    } else if (a == "--lang") {
      if (i + 1 >= args.size()) return Fail(2, "--lang needs en or zh");
      const std::string& l = args[++i];
      if (l == "en") {
        o.lang = 0;
      } else if (l == "zh") {
        o.lang = 1;
      } else {
        return Fail(2, "--lang takes en or zh, not '" + l + "'");
      }
    } else if (a == "--find") {
      if (i + 1 >= args.size()) return Fail(2, "--find needs a text");
      o.find = args[++i];
      o.has_find = true;
    } else if (!a.empty() && a[0] == '-') {
      return Fail(2, "unknown option '" + a + "'");
    } else if (!o.has_index && ParseIndex(a, o.index)) {
      o.has_index = true;
    } else {
      return Fail(2, "strings takes one INDEX (a number), not '" + a + "'");
    }
  }
  if (o.has_index && o.has_find) return Fail(2, "give INDEX or --find, not both");

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
  if (!any) return Fail(1, std::string("no ") + what + " contains '" + o.find + "'");
  return 0;
}

}  // namespace mapcfg_tool
