// mapcfg diff: two whole configurations compared field by field.
#include <mapcfg/mapcfg.h>

#include <cstdio>
#include <map>
#include <unordered_map>

#include "commands.h"
#include "config_set.h"
#include "display_text.h"

namespace mapcfg_tool {

namespace {

using mapcfg::FieldText;
using mapcfg::FieldTexts;

std::string Shown(const FieldText& f, bool raw) {
  return f.kind == FieldText::kText ? "\"" + ToDisplay(f.value, raw) + "\"" : f.value;
}

// Arrays whose elements are named by the code or name at the same index of
// another array: a record is matched by its code, not by its place in a
// sorted table.
const struct {
  const char* keys;
  std::vector<const char*> arrays;
} kKeyed[] = {
    {"store.libNames", {"store.libNames", "store.libDlls"}},
    {"store.menuNames", {"store.menuNames", "store.menuFuns"}},
    {"store.statusCodes", {"store.statusCodes", "store.statusProps"}},
    {"store.interpretCodes", {"store.interpretCodes", "store.interpretProps"}},
    {"store.lithCodes", {"store.lithCodes", "store.lithProps"}},
    {"store.colorNames", {"store.colorNames", "store.colors"}},
    {"store.yqxsNames", {"store.yqxsNames", "store.yqxsPicts"}},
    {"store.hywNames", {"store.hywNames", "store.hywPicts"}},
    {"store.yxqzNames", {"store.yxqzNames", "store.yxqzPicts"}},
    {"store.gzfhNames", {"store.gzfhNames", "store.gzfhPicts"}},
    {"store.textFmtNames", {"store.textFmtNames", "store.textFmts"}},
    {"store.dataSrcNames", {"store.dataSrcNames", "store.dataSrcVals"}},
    {"store.labelCrvCodes", {"store.labelCrvCodes", "store.labelCrvVals"}},
};

// "store.colors[3]" of "store.colorNames[3]" = "Red" becomes
// "store.colors[Red]", and "fence.curves[0].Prop..." of
// "fence.curves[0].Code" = "GR" becomes "fence.curves[GR].Prop..."; a code
// met again gets "#2", "#3" ...
void NameByCode(FieldTexts* fields) {
  std::map<std::string, std::string> codes;  // "store.colors[3]" -> "Red"
  std::map<std::string, int> seen;           // "store.colorNames[Red]" -> 1
  for (const FieldText& f : *fields) {
    const size_t open = f.name.find('[');
    if (open == std::string::npos) continue;
    const size_t close = f.name.find(']', open);
    const std::string array = f.name.substr(0, open), element = f.name.substr(open, close - open + 1);
    std::string code = f.value;
    if (close + 1 == f.name.size()) {
      for (const auto& k : kKeyed) {
        if (array != k.keys) continue;
        const int n = ++seen[array + "[" + code + "]"];
        if (n > 1) code += "#" + std::to_string(n);
        for (const char* a : k.arrays) codes[a + element] = code;
      }
    } else if (array.size() > 7 && array.compare(array.size() - 7, 7, ".curves") == 0 &&
               f.name.compare(close + 1, std::string::npos, ".Code") == 0) {
      const int n = ++seen[array + "[" + code + "]"];
      if (n > 1) code += "#" + std::to_string(n);
      codes[array + element] = code;
    }
  }
  for (FieldText& f : *fields) {
    const size_t close = f.name.find(']');
    if (close == std::string::npos) continue;
    const auto code = codes.find(f.name.substr(0, close + 1));
    if (code == codes.end()) continue;
    f.name = f.name.substr(0, f.name.find('[')) + "[" + code->second + "]" + f.name.substr(close + 1);
  }
}

struct Side {
  LoadedConfig loaded;
  FieldTexts fields;
};

bool Load(const std::string& arg, char lang, bool by_code, Side* side) {
  std::string why;
  if (!LoadConfig(arg, lang, &side->loaded, &why)) {
    Fail(2, why);
    return false;
  }
  side->fields = mapcfg::sDescribeAll();
  if (by_code) NameByCode(&side->fields);
  return true;
}

}  // namespace

int RunDiff(const Call& call) {
  char lang = -1;
  if (call.Has("--lang") && !ParseLang(call.Value("--lang"), &lang))
    return UsageError("--lang takes en or zh, not '" + NameToDisplay(call.Value("--lang")) + "'");
  const bool raw = call.Has("--raw");
  const bool layout = call.Has("--layout");
  const char saved_lang = *mapcfg::sGetCfgLang();
  Side a, b;
  // Codes name records unless only the layout counts: a translation has
  // other codes at the same places.
  const bool loaded = Load(call.operands[0], lang, !layout, &a) && Load(call.operands[1], lang, !layout, &b);
  EmptyStore();
  *mapcfg::sGetCfgLang() = saved_lang;
  if (!loaded) return 2;

  std::unordered_map<std::string, size_t> in_b;
  for (size_t i = 0; i < b.fields.size(); ++i) in_b.emplace(b.fields[i].name, i);
  std::unordered_map<std::string, size_t> in_a;
  for (size_t i = 0; i < a.fields.size(); ++i) in_a.emplace(a.fields[i].name, i);
  size_t changed = 0, removed = 0, added = 0;
  for (const FieldText& f : a.fields) {
    const auto other = in_b.find(f.name);
    if (other == in_b.end()) {
      ++removed;
      std::printf("- %s = %s\n", ToDisplay(f.name, raw).c_str(), Shown(f, raw).c_str());
    } else if (!layout && b.fields[other->second].value != f.value) {
      ++changed;
      std::printf("~ %s: %s -> %s\n", ToDisplay(f.name, raw).c_str(), Shown(f, raw).c_str(),
                  Shown(b.fields[other->second], raw).c_str());
    }
  }
  for (const FieldText& f : b.fields)
    if (!in_a.count(f.name)) {
      ++added;
      std::printf("+ %s = %s\n", ToDisplay(f.name, raw).c_str(), Shown(f, raw).c_str());
    }
  if (changed + removed + added == 0) {
    std::printf("the same %s: %zu fields\n", layout ? "records and fields" : "configuration", a.fields.size());
    return 0;
  }
  std::printf("%zu changed, %zu removed, %zu added (of %zu fields)\n", changed, removed, added, a.fields.size());
  return 1;
}

}  // namespace mapcfg_tool
