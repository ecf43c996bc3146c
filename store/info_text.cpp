// Information texts: messages and captions fetched by number.
//
// The texts come from the language resource library once a host has loaded
// one. Before that, the library answers from the built-in English texts
// below for the numbers it uses itself, so that archive errors always carry
// a readable message.
#include "info_text_source.h"
#include "mapcfg/store.h"

namespace mapcfg {

namespace {

struct BuiltinText {
  int index;
  const char* text;
};

// Kept in step with res/ (the English resource library).
constexpr BuiltinText kBuiltinTexts[] = {
    {539, "An unexpected error occurred in the library."},
    {838, "Attempt to read beyond the end of the archive."},
    {839, "The archive delivered fewer bytes than were asked for."},
    {840, "The stored value cannot be read as the requested type."},
    {1114, "Metre"},
    {1115, "m"},
    {1116, "Foot"},
    {1117, "ft"},
    {1251, "SimSun"},
};

}  // namespace

const char* BuiltinInfoText(int index) {
  for (const BuiltinText& t : kBuiltinTexts)
    if (t.index == index) return t.text;
  return "";
}

namespace detail {
ResStrFun& InfoTextSource() {
  static ResStrFun source = nullptr;
  return source;
}
}  // namespace detail

String sGetInfoStr(int index) {
  const ResStrFun source = detail::InfoTextSource();
  const char* text = source ? source(index) : BuiltinInfoText(index);
  return text ? String(text) : String();
}

}  // namespace mapcfg
