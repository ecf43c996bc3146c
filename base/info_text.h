// Information texts (messages and captions) by number, for every layer of
// the library: the archive's error texts, the store's captions.
#ifndef MAPCFG_BASE_INFO_TEXT_H_
#define MAPCFG_BASE_INFO_TEXT_H_

#include <string>

namespace mapcfg {
namespace detail {

// A source of information texts: the language resource library's
// dllGetResStrPtr (the same type as ResStrFun).
using InfoTextFun = const char* (*)(int);

// The current source; null until a resource library is loaded.
InfoTextFun& InfoTextSource();

// The built-in English text for `index`, or "" when there is none.
const char* BuiltinInfoText(int index);

// Text `index` from the current source or, while there is none, the
// built-in English text; "" when neither has one (sGetInfoStr).
std::string InfoText(int index);

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_BASE_INFO_TEXT_H_
