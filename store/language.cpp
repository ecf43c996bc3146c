// The language byte, the configuration string and help tables, the language
// resource library, message boxes and version numbers.
#include <charconv>
#include <iterator>

#include "base/info_text.h"
#include "mapcfg/store.h"
#include "store/module_loader.h"
#include "store/store_state.h"

namespace mapcfg {

using detail::State;

namespace {

struct TextPair {
  const char* english;
  const char* chinese;  // GBK
};

constexpr TextPair kCfgStrings[] = {
#define MAPCFG_CFG_STR(name, english, chinese) {english, chinese},
#include "config_strings.gbk.inc"
#undef MAPCFG_CFG_STR
};
static_assert(std::size(kCfgStrings) == kCfgStrCount, "one English and one Chinese text per configuration string");

constexpr TextPair kHelpStrings[] = {
#include "help_strings.gbk.inc"
};
static_assert(std::size(kHelpStrings) == kHelpStrCount, "one English and one Chinese text per help row");

// Row `index` of `table` in language `lang`; "" outside the table (callers
// pass constants, so that never happens in the library itself).
template <size_t N>
String Lookup(const TextPair (&table)[N], char lang, int index) {
  if (index < 0 || static_cast<size_t>(index) >= N) return String();
  const TextPair& row = table[index];
  return static_cast<signed char>(lang) == 1 ? row.chinese : row.english;
}

}  // namespace

char* sGetCfgLang() { return &State().lang; }

String sGetCfgStr(char lang, int index) { return Lookup(kCfgStrings, lang, index); }

String sGetHelpStr(char lang, int index) { return Lookup(kHelpStrings, lang, index); }

String* sCfgGet_dllResourcePtr() { return &State().resource_name; }

String sLoadResoueceDLL(const char* file) {
  void* module = sLoadDll((sGetHomeDir() + "\\" + (file ? file : "")).c_str());
  if (module) {
    State().resource_module = module;
    detail::InfoTextSource() = reinterpret_cast<ResStrFun>(detail::FindExport(module, "dllGetResStrPtr"));
  }
  return String();
}

String sGetInfoStr(int index) { return detail::InfoText(index); }

ResStrFun* sDllGetResStrPtr() { return &detail::InfoTextSource(); }

void* sGetResourceModule() { return State().resource_module; }

int sMsgBox(char kind, const char* text) {
  const signed char k = static_cast<signed char>(kind);
  if (k < 0 || k > 2) return 0;
  const MsgBoxHandler handler = State().msg_box;
  const int answer = handler ? handler(kind, text ? text : "") : (k == 2 ? 0 : 1);
  return k == 2 ? (answer != 0 ? 1 : 0) : 1;
}

MsgBoxHandler sSetMsgBoxHandler(MsgBoxHandler handler) {
  const MsgBoxHandler previous = State().msg_box;
  State().msg_box = handler;
  return previous;
}

String sGetVersionStr(uint32_t version) {
  String text;
  for (int shift = 24; shift >= 0; shift -= 8) {
    char part[2];
    const auto res = std::to_chars(part, part + sizeof part, (version >> shift) & 0xFF, 16);
    text.append(part, res.ptr);
    if (shift) text += '.';
  }
  return text;
}

}  // namespace mapcfg
