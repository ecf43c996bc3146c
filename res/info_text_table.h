// A table of information texts by number, as the resource libraries and the
// library's built-in texts hold them.
#ifndef MAPCFG_RES_INFO_TEXT_TABLE_H_
#define MAPCFG_RES_INFO_TEXT_TABLE_H_

#include <cstddef>

namespace mapcfg {
namespace res {

struct InfoText {
  int index;
  const char* text;
};

// The text of number `index` in `table`, or "" when it has none.
template <size_t N>
const char* FindInfoText(const InfoText (&table)[N], int index) {
  for (const InfoText& t : table)
    if (t.index == index) return t.text;
  return "";
}

}  // namespace res
}  // namespace mapcfg

#endif  // MAPCFG_RES_INFO_TEXT_TABLE_H_
