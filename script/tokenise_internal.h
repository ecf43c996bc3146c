// The field splitter behind sGetSubStr, for callers that hold a byte range.
#ifndef MAPCFG_SCRIPT_TOKENISE_INTERNAL_H_
#define MAPCFG_SCRIPT_TOKENISE_INTERNAL_H_

#include <cstddef>

#include "mapcfg/types.h"

namespace mapcfg {
namespace detail {

// sGetSubStr over text[0, len).
String SubStr(const char* text, size_t len, char sep, int start, int* pos, const char* prefix,
              const char* suffix, int ctrl);

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_SCRIPT_TOKENISE_INTERNAL_H_
