// Map-type templates.
#ifndef MAPCFG_MAPS_H_
#define MAPCFG_MAPS_H_

#include <cstdint>

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {

class CCfgScript;

// --- Well location map ----------------------------------------------------------
// One process-wide record of each; the readers take their keys from the
// block "Well Location Map" ("井位图") of the current language.

// How depths and symbols are based when a map is made automatically.
// Archive: Byte DepthBaseMode, String StraBaseName, Float SglBaseDepth, Byte
// SglDisplayMode, String Text, Byte Switch1, Byte Switch2.
struct _JWTAutoParm {
  char DepthBaseMode = 0;      // 1 well mouth, 2 well bottom, 3 target layer, 4 MD of the target layer
  String StraBaseName;         // the base stratum
  float SglBaseDepth = 0.0f;   // base depth of the symbols
  uint8_t SglDisplayMode = 0;  // bits 0x02 and 0x04: which parts of the track are shown
  String Text;                 // no key sets it; the reader empties it
  uint8_t Switch1 = 0;         // no key sets the switches; the reader sets both to 1
  uint8_t Switch2 = 0;
};

// Sizes of well symbols and names and where contour labels go. Archive: the
// five Floats in order.
struct _JWTMapProp {
  float WSymbolRadius = 0.0f;
  float WNameFontHeight = 0.0f;
  float HangingFootWallsDistance = 0.0f;  // between the hanging and foot wall lines of a fault
  float ContourPosition = 0.0f;           // relative position of contour value labels
  float AutoScanRdius = 0.0f;
};

MAPCFG_EXPORT _JWTAutoParm* sCfgGetJWTAutoParmPtr();
MAPCFG_EXPORT _JWTMapProp* sCfgGetJWTMapPropPtr();
// Numbers are scanned as "%d", "%f" or "%x" (sToInteger, sToFloat, sToDWord),
// so an empty or unreadable value is 0 before the rules apply:
// DepthBaseMode outside 1..4 becomes 3; a negative SglBaseDepth becomes
// 1200; SglDisplayMode keeps the low byte; StraBaseName is kept as written;
// Text is emptied and both switches set to 1.
MAPCFG_EXPORT void sCfgReadJWTAutoParm(CCfgScript& script, _JWTAutoParm* parm);
// Each value below 0.0005 (single precision; 0.0005 itself is kept) becomes
// its default: WSymbolRadius 25, WNameFontHeight 35, HangingFootWallsDistance
// 50, ContourPosition 0.5, AutoScanRdius 50.
MAPCFG_EXPORT void sCfgReadJWTMapProp(CCfgScript& script, _JWTMapProp* prop);
// Field-by-field copies (destination first).
MAPCFG_EXPORT void sCfgCopyJWTAutoParm(_JWTAutoParm* dst, const _JWTAutoParm* src);
MAPCFG_EXPORT void sCfgCopyJWTMapProp(_JWTMapProp* dst, const _JWTMapProp* src);

}  // namespace mapcfg

#endif  // MAPCFG_MAPS_H_
