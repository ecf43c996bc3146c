// Information texts: messages and captions fetched by number.
//
// The texts come from the language resource library once a host has loaded
// one. Before that, the library answers from the built-in English texts
// (those of the English resource library) for the numbers it uses itself,
// so that archive errors always carry a readable message.
#include "base/info_text.h"

#include "res/info_text_table.h"

namespace mapcfg {
namespace detail {

namespace {

constexpr res::InfoText kBuiltinTexts[] = {
#include "res/info_texts_en.inc"
};

}  // namespace

InfoTextFun& InfoTextSource() {
  static InfoTextFun source = nullptr;
  return source;
}

const char* BuiltinInfoText(int index) { return res::FindInfoText(kBuiltinTexts, index); }

std::string InfoText(int index) {
  const InfoTextFun source = InfoTextSource();
  const char* text = source ? source(index) : BuiltinInfoText(index);
  return text ? std::string(text) : std::string();
}

}  // namespace detail
}  // namespace mapcfg
