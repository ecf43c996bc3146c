// The script forms of the line and pattern records inside a value:
// "LineStyle; LineWidth; LineColor" and "PatternName; PatternBGColor", each
// field optional (an empty one keeps what the record holds, its initialiser's
// value for a fresh record).
#ifndef MAPCFG_CATALOGS_ATTRIBUTE_VALUES_H_
#define MAPCFG_CATALOGS_ATTRIBUTE_VALUES_H_

#include <cstring>

#include "mapcfg/catalogs.h"
#include "store/script_fields.h"

namespace mapcfg {
namespace detail {

// A name field set to `value` cut to N - 1 bytes; an empty value keeps the
// field (the initialiser's style or pattern).
template <size_t N>
void SetFixedName(char (&to)[N], const String& value) {
  if (value.empty()) return;
  const size_t n = value.size() < N - 1 ? value.size() : N - 1;
  std::memcpy(to, value.data(), n);
  to[n] = '\0';
}

// The next three fields of `f`: style, width ("%f"), colour ("%x").
inline void ReadLineFields(ValueFields& f, LINE_PROP& line) {
  SetFixedName(line.style, f.Text(';'));
  const String width = f.Text(';');
  if (!width.empty()) line.width = sToFloat(width);
  const String color = f.Text(';');
  if (!color.empty()) line.color = sToDWord(color);
}

// The next two fields of `f`: pattern name, background colour ("%x").
inline void ReadPattFields(ValueFields& f, PATT_PROP& patt) {
  SetFixedName(patt.name, f.Text(';'));
  const String back = f.Text(';');
  if (!back.empty()) patt.backColor = sToDWord(back);
}

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_ATTRIBUTE_VALUES_H_
