// The information-text source shared inside the store.
#ifndef MAPCFG_STORE_INFO_TEXT_SOURCE_H_
#define MAPCFG_STORE_INFO_TEXT_SOURCE_H_

#include "mapcfg/store.h"

namespace mapcfg {

// The built-in English text for `index`, or "" when there is none.
const char* BuiltinInfoText(int index);

namespace detail {
// The current information-text source; null until a resource library is
// loaded.
ResStrFun& InfoTextSource();
}  // namespace detail

}  // namespace mapcfg

#endif  // MAPCFG_STORE_INFO_TEXT_SOURCE_H_
