// Showing script and archive text (GBK or ASCII bytes) on a UTF-8 terminal.
#ifndef MAPCFG_TOOLS_DISPLAY_TEXT_H_
#define MAPCFG_TOOLS_DISPLAY_TEXT_H_

#include <string>

namespace mapcfg_tool {

// `bytes` converted from GBK to UTF-8; ASCII passes unchanged and a byte
// sequence that is not GBK is shown as \xNN escapes. With `raw` the bytes are
// returned as they are.
std::string ToDisplay(const std::string& bytes, bool raw);

// True when `bytes` holds a byte above 0x7F and is valid UTF-8 as a whole.
bool LooksLikeUtf8(const std::string& bytes);

}  // namespace mapcfg_tool

#endif  // MAPCFG_TOOLS_DISPLAY_TEXT_H_
