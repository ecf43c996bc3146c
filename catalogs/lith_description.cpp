// Splitting a Chinese lithology description into colour, oil show,
// modifiers and base lithology, with a symbol for each part.
#include "base/text_bytes.h"
#include "mapcfg/catalogs.h"

namespace mapcfg {

namespace {

// "色" (colour) in GBK: a colour name ends with it.
constexpr char kColourChar[] = "\xC9\xAB";

// Index of the character `ch` (two GBK bytes) in `text`, looking only at
// character starts, or npos.
size_t FindGbkChar(const String& text, const char* ch) {
  for (size_t i = 0; i < text.size(); i += detail::CharLen(text, i))
    if (text.compare(i, 2, ch) == 0) return i;
  return String::npos;
}

// Cuts the first of `names` (in stored order) that begins `text`, ASCII case
// ignored, off `text` and gives it in `part`; leaves both alone when none
// does.
void CutFirstPrefix(String& text, const StringArray& names, String& part) {
  for (const String& name : names) {
    if (name.size() <= text.size() && detail::EqualsNoCase(text.data(), name.size(), name.data(), name.size())) {
      part = name;
      text.erase(0, name.size());
      return;
    }
  }
}

}  // namespace

int sCfgGetLithPropByCode(String& description, String& oilShow, String& colorName, String& lithName, double& ratio,
                          String parts[4], String symbols[4], String& patternName, String& oilShowSymbol,
                          uint32_t& color) {
  String rest = description;
  const size_t colour_at = FindGbkChar(rest, kColourChar);
  if (colour_at != String::npos) {
    colorName = rest.substr(0, colour_at + 2);
    rest.erase(0, colour_at + 2);
  }
  CutFirstPrefix(rest, *sCfgGetYQXSNamesPtr(), oilShow);
  // Containing material, lithology prefix, structure: parts 4, 3 and 2.
  const StringArray* modifiers[4] = {nullptr, sCfgGetGZFHNamesPtr(), sCfgGetYXQZNamesPtr(), sCfgGetHYWNamesPtr()};
  for (int i = 3; i >= 1; --i) {
    parts[i].clear();
    CutFirstPrefix(rest, *modifiers[i], parts[i]);
  }
  parts[0] = rest;
  description = rest;

  // The longest run of parts ending with the base lithology that is a
  // lithology code; the modifiers it takes in are emptied.
  const _LithProp* lith = nullptr;
  for (int longest = 3; longest >= 0 && !lith; --longest) {
    String code;
    for (int i = longest; i >= 0; --i) code += parts[i];
    lith = sCfgFindLithProp(code, 1);
    if (lith)
      for (int i = 1; i <= longest; ++i) parts[i].clear();
  }
  const _LithProp none{"", 1.0, "", "", 0, 0};
  if (!lith) lith = &none;
  lithName = lith->name;
  ratio = lith->ratio;
  symbols[0] = lith->symbolName;
  patternName = lith->patternName;

  oilShowSymbol = sCfgFindYQXS(oilShow);
  color = sCfgFindColor(colorName);
  String (*const find_symbol[4])(const String&) = {nullptr, sCfgFindGZFH, sCfgFindYXQZ, sCfgFindHYW};
  for (int i = 1; i <= 3; ++i) symbols[i] = parts[i].empty() ? String() : find_symbol[i](parts[i]);
  return 4;
}

}  // namespace mapcfg
