// Information texts: messages and captions fetched by number.
//
// The texts come from the language resource library once a host has loaded
// one. Before that, the library answers from the built-in English texts
// (those of the English resource library) for the numbers it uses itself,
// so that archive errors always carry a readable message.
#include "info_text_source.h"
#include "mapcfg/store.h"
#include "res/info_text_table.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

constexpr res::InfoText kBuiltinTexts[] = {
#include "res/info_texts_en.inc"
};

}  // namespace

const char* BuiltinInfoText(int index) { return res::FindInfoText(kBuiltinTexts, index); }

namespace detail {
ResStrFun& InfoTextSource() { return State().info_source; }
}  // namespace detail

String sGetInfoStr(int index) {
  const ResStrFun source = detail::InfoTextSource();
  const char* text = source ? source(index) : BuiltinInfoText(index);
  return text ? String(text) : String();
}

ResStrFun* sDllGetResStrPtr() { return &detail::InfoTextSource(); }

}  // namespace mapcfg
