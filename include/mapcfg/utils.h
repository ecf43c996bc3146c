// General utilities: files and paths, number and text conversions, variant
// conversions. All functions are stateless; none reports errors except by
// its result.
#ifndef MAPCFG_UTILS_H_
#define MAPCFG_UTILS_H_

#include <cstdint>
#include <string>
#include <vector>

#include "mapcfg/export.h"
#include "mapcfg/platform.h"
#include "mapcfg/types.h"
#include "mapcfg/values.h"

namespace mapcfg {

// --- Files and paths ----------------------------------------------------------
// Paths use "\" (and "/" on POSIX) as separator and may begin with a drive "X:".

// Everything before the last "\" or "/", or up to and including the last ":"
// when that comes later; empty when neither occurs ("C:\a\b.cfg" -> "C:\a").
MAPCFG_EXPORT String sGetDirFromPath(String path);
// Everything after the last "\", "/" or ":"; the whole path when none occurs.
MAPCFG_EXPORT String sGetFileFromPath(String path);
// Everything before the last "." of the whole text (which may hold a folder).
MAPCFG_EXPORT String sGetNameFromFile(String file);
// The last "." and what follows; empty when there is no ".".
MAPCFG_EXPORT String sGetExtFromFile(String file);
// 1 when `path` names an existing directory, else 0.
MAPCFG_EXPORT int sIsDirExist(const char* path);
// 1 when `path` names an existing file that is not a directory, else 0.
MAPCFG_EXPORT int sIsFileExist(const char* path);
// Creates base\dir1\...\dirN (each level must be new; stops at the first null
// dir) and then, when `file` is not null, base\dirs\file empty (truncating
// it). Returns 1 on success, 0 at the first failure.
MAPCFG_EXPORT int sCreateFile(const char* base, const char* file, const char* dir1 = nullptr,
                              const char* dir2 = nullptr, const char* dir3 = nullptr,
                              const char* dir4 = nullptr);
// Counts the files (not directories) matching `pattern` (wildcards "*" and
// "?" in the last component) and appends their bare names to `out` when it is
// not null. Returns -1 when nothing at all matches.
MAPCFG_EXPORT int sGetFiles(const char* pattern, StringArray* out);


// --- Number and text conversions -----------------------------------------------
// What sToString writes is what the script readers scan back, so the rounding
// and formatting below are part of the file formats. Nothing here depends on
// the host's locale: the decimal point is always ".", blanks are the C
// locale's (space, \t, \n, \v, \f, \r). Texts may be null (read as "").

// `text` with every control byte (1 to 31) removed.
MAPCFG_EXPORT String sStdNumber(const char* text);
MAPCFG_EXPORT String sStdNumber(const String& text);

// Decimal text of an integer ("%d"). A char is read as signed on every
// platform. The overloads cover every integer type, so that no call with a
// built-in integer is ambiguous; 64-bit values are written in full.
MAPCFG_EXPORT String sToString(char value);
MAPCFG_EXPORT String sToString(int value);
MAPCFG_EXPORT String sToString(unsigned value);
MAPCFG_EXPORT String sToString(long value);
MAPCFG_EXPORT String sToString(unsigned long value);
MAPCFG_EXPORT String sToString(long long value);
MAPCFG_EXPORT String sToString(unsigned long long value);
// sToStdNumStr(value, 4, 1, 0): up to 4 decimals, trailing zeros removed.
MAPCFG_EXPORT String sToString(float value);
// sToStdNumStr(value, 6, 1, 0): up to 6 decimals, trailing zeros removed.
MAPCFG_EXPORT String sToString(double value);

// `value` with `decimals` digits after the point ("%0.<decimals>lf", rounded
// to nearest). When `trim` is non-zero and the text holds a ".", trailing "0"s,
// then trailing "."s, then trailing "-"s are removed ("3.000" -> "3", but
// "-0.000" -> "-0"). When `empty_if_zero` is non-zero and the result is exactly
// "0", the empty String is returned. A negative `decimals` counts as 0, and
// more than 1074 (past which a double has only zeros) as 1074. Infinities
// and NaN give "inf", "-inf", "nan", "-nan".
MAPCFG_EXPORT String sToStdNumStr(double value, int decimals, int trim, int empty_if_zero);
// The float is widened to double and formatted as above.
MAPCFG_EXPORT String sToStdNumStr(float value, int decimals, int trim, int empty_if_zero);

// Text to number, read as a C scan with "%d", "%x", "%f" or "%lf" into a value
// preset to 0: leading blanks are skipped, the longest number at the start is
// read, trailing text is ignored, and a text that does not start with a number
// gives 0.
// - sToInteger: optional sign and decimal digits; numbers beyond the int range
//   give INT_MIN or INT_MAX.
// - sToDWord: optional sign, optional "0x", hexadecimal digits; a "-" negates
//   modulo 2^32; numbers beyond 32 bits give 0xFFFFFFFF.
// - sToFloat, sToDouble: decimal notation only ("1", "-2.5", ".5", "3e-2");
//   "inf", "nan" and hexadecimal floats count as no number. Rounded once to
//   the nearest float or double; too large gives +-infinity, too small +-0.
MAPCFG_EXPORT int sToInteger(const char* text);
MAPCFG_EXPORT int sToInteger(const String& text);
MAPCFG_EXPORT uint32_t sToDWord(const char* text);
MAPCFG_EXPORT uint32_t sToDWord(const String& text);
MAPCFG_EXPORT float sToFloat(const char* text);
MAPCFG_EXPORT float sToFloat(const String& text);
MAPCFG_EXPORT double sToDouble(const char* text);
MAPCFG_EXPORT double sToDouble(const String& text);

// Rounds a double to int: values >= 0 give trunc(value + 0.49), negative ones
// trunc(value - 0.5). So 2.5 -> 2, 2.51 -> 3, -2.5 -> -3, -2.49 -> -2. The
// asymmetry is kept on purpose. Results beyond the int range give INT_MIN or
// INT_MAX; NaN gives 0.
MAPCFG_EXPORT int sToInteger(double value);

// The 64-bit integer written in decimal and read back as a double (the
// nearest double).
MAPCFG_EXPORT double sInt64ToDouble(int64_t value);

// Packed degrees-minutes-seconds D.MMSSf (116.3045 is 116 deg 30' 45") to
// degrees. The fraction left below the second is scaled by 0.0001, as files
// written by older versions expect.
MAPCFG_EXPORT double sDMSToDegree(double dms);
// Degrees to packed D.MMSSf; the fraction below the second is scaled by
// 1/3600. The round trip with sDMSToDegree is not exact in the last digits.
MAPCFG_EXPORT double sDegreeToDMS(double degree);

// Angle normalisers. Each gives exactly what adding or subtracting the period
// repeatedly would give (rounding at every step included), in a bounded
// number of operations:
// - sGetStdAngle360: while below 0 add 360, then while >= 360 subtract 360.
// - sGetStdAngle180: while above 180 subtract 360, then while <= -180 add 360
//   (180 stays 180, -180 becomes 180).
// - sGetStdRadianPI2: as sGetStdAngle360 with the period 6.283185307.
// When a value is so large that adding the period no longer changes it
// (about 1e18 and beyond), it is first replaced by its exact remainder
// (std::fmod) and normalised from there. Infinities and NaN give NaN.
MAPCFG_EXPORT double sGetStdAngle360(double degree);
MAPCFG_EXPORT double sGetStdAngle180(double degree);
MAPCFG_EXPORT double sGetStdRadianPI2(double radian);

// Chainage texts: with v = value * 1e-5, `high` is the decimal text of
// trunc(v) ("0" becomes two blanks, another single digit gets a leading "0")
// and `low` is sToStdNumStr((v - trunc(v)) * 100, 3, 1, 0), with a "0" put in
// front when its integer part is one character. 1234567 -> "12", "34.567";
// 5000 -> "  ", "05".
MAPCFG_EXPORT void sGetKMHighLow2Str(int value, String& high, String& low);

// Snaps `point` to the horizontal or vertical line through `reference`:
// when |dy| <= |dx| its y becomes reference.y, otherwise its x becomes
// reference.x.
MAPCFG_EXPORT void sToHVPoint(CDblPoint& reference, CDblPoint& point);
MAPCFG_EXPORT void sToHVPoint(CPoint& reference, CPoint& point);

// Length of the common prefix of `a` and `b`, ASCII case ignored.
MAPCFG_EXPORT int sLeftFindSameCnt(const String& a, const String& b);
// The common prefix of `a` and `b` (ASCII case ignored), upper-cased.
MAPCFG_EXPORT String sLeftGetSameStr(const char* a, const char* b);
// 1 when `a` is a leading part of `b` (ASCII case ignored) that is all of
// `b`, or is followed in `b` by one of `separators`, or `separators` is
// empty. When `one_way` is 0 the same test is also made with `a` and `b`
// exchanged. Otherwise 0.
MAPCFG_EXPORT int sLeftCmpStr(const String& a, const String& b, const String& separators, int one_way);

// --- Well names and drawing text ---------------------------------------------------
// Texts are ASCII or GBK: a byte 0x81..0xFE and the byte after it form one
// character and are never taken apart.

// Splits a well name into its leading name (everything before the first
// ASCII digit, trailing blanks removed) and its number (the rest), and the
// number into pieces at any of `separators` (null or "" means "-" and "_";
// empty pieces are kept). `part` chooses what `id` receives: 0 the leading
// name, -1 the whole number, k >= 1 the k-th piece; anything else the empty
// String. Returns the number of pieces, 0 when the name holds no digit.
// "Wen 12-5X": name "Wen", number "12-5X", pieces "12" and "5X"; returns 2.
MAPCFG_EXPORT int sGetWellID(String well, int part, const char* separators, String& id);

// Drawing-text markup: "^" switches superscript on and off, "`" switches
// subscript on and off (one switches the other off), and a "\" before "^",
// "`" or "\" makes that character plain text; any other "\" is plain text.
//
// Appends `down` as subscript and then `up` as superscript to `text`, each
// enclosed in its marks and with its own "^", "`" and "\" escaped; an empty
// part adds nothing. ("E", "s3", "2") -> "E`s3`^2^".
MAPCFG_EXPORT void sToUpDownMarkStr(String& text, const char* down, String up);

// Piece kinds of sDrawFmtText_DiviSubStr.
constexpr char kDrawTextNormal = 0;
constexpr char kDrawTextUp = 1;    // superscript
constexpr char kDrawTextDown = 2;  // subscript

// Divides marked drawing text into runs of one kind. `pieces` and `kinds`
// are cleared and then receive, in order, each non-empty run with its
// escapes resolved and its kind (kDrawText...). `text` is replaced by the
// plain text (all pieces joined). Returns the number of pieces.
MAPCFG_EXPORT int sDrawFmtText_DiviSubStr(String& text, StringArray& pieces, std::vector<char>& kinds);

// --- Variant conversions ------------------------------------------------------
// Cell values exchanged with database and spreadsheet interfaces arrive as
// automation variants. These routines never fail: a type they do not handle
// gives the empty String or 0.

// Variant type tags, the platform's automation codes (never change).
enum VariantType : uint16_t {
  VT_EMPTY = 0,
  VT_NULL = 1,
  VT_I2 = 2,
  VT_I4 = 3,
  VT_R4 = 4,
  VT_R8 = 5,
  VT_CY = 6,
  VT_DATE = 7,
  VT_BSTR = 8,
  VT_ERROR = 10,
  VT_BOOL = 11,
  VT_VARIANT = 12,
  VT_DECIMAL = 14,
  VT_I1 = 16,
  VT_UI1 = 17,
  VT_UI2 = 18,
  VT_UI4 = 19,
};

// Currency: the 64-bit integer Hi * 2^32 + Lo, in units of 1/10000.
struct CY {
  uint32_t Lo;
  int32_t Hi;
};

// 96-bit decimal: (Hi32 * 2^64 + Lo64) / 10^scale, negative when sign is 128.
struct DECIMAL {
  uint16_t wReserved;
  uint8_t scale;
  uint8_t sign;
  uint32_t Hi32;
  uint64_t Lo64;
};

// An automation variant: the type tag `vt` and the value in the member the
// tag names. A default VARIANT is VT_EMPTY with every value byte 0. Members
// share their storage from its first byte, as on the platform: VT_I1 and
// VT_UI1 values are read through the 16-bit field, so the byte above cVal or
// bVal should be 0 (it is, in a VARIANT that started from the default).
// `date` counts days since 1899-12-30 00:00; the fraction is the time of day,
// and for a negative date it counts from midnight forwards like a positive
// one (-1.25 is 1899-12-29 06:00). `bstrVal` is NUL-terminated UTF-16 text
// owned by the caller; the library never frees it, and null reads as "".
struct VARIANT {
  uint16_t vt = VT_EMPTY;
  union {
    DECIMAL decVal = {};
    char cVal;
    uint8_t bVal;
    int16_t iVal;
    uint16_t uiVal;
    int32_t lVal;
    uint32_t ulVal;
    float fltVal;
    double dblVal;
    int16_t boolVal;  // VARIANT_BOOL: -1 true, 0 false
    CY cyVal;
    double date;
    const char16_t* bstrVal;
  };
};

// The variant as text:
//   VT_I2, VT_I1: the 16-bit signed value; VT_UI1, VT_UI2: the 16-bit
//   unsigned value; VT_I4, VT_UI4: the 32-bit value, signed or unsigned;
//   VT_R4, VT_R8: sToString of the float or double;
//   VT_CY: the amount with up to 4 decimals, trailing zeros removed
//   ("1234.5678", "-0.5", "7");
//   VT_DATE: "YYYY-MM-DD hh:mm:ss" rounded to the second, or "YYYY-MM-DD"
//   at midnight ("2006-03-15 14:30:45", "1899-12-30"); empty for dates
//   outside the years 100 to 9999 (whole days -657434 to 2958465);
//   VT_BSTR: ASCII characters as they are, every other character
//   (a surrogate pair counts as one) as "?", since the code page is unknown;
//   VT_BOOL: "1" or "0";
//   VT_DECIMAL: sToString of the double described at sVar2Dbl.
// Any other tag gives the empty String. Never depends on the host's locale.
MAPCFG_EXPORT void sVar2Str(const VARIANT& var, String& out);
// The variant as a number:
//   16-bit and 32-bit integers: their values (VT_UI4 as unsigned);
//   VT_R4, VT_R8: the value; VT_CY: Lo * 0.0001 + Hi (the packing older
//   versions wrote, not the amount); VT_DATE: YYYYMMDD.hhmmss as
//   year * 10000 + month * 100 + day + hour * 0.01 + minute * 0.0001 +
//   second * 0.000001 (0 outside the years 100 to 9999); VT_BSTR: sStdNumber
//   then sToDouble; VT_BOOL: 1 or 0; VT_DECIMAL: Lo64 read as a signed 64-bit
//   integer through sInt64ToDouble, negated when sign is 128, divided by
//   10^scale (Hi32 is not used). Any other tag gives 0.
MAPCFG_EXPORT void sVar2Dbl(const VARIANT& var, double& out);
// As sVar2Dbl narrowed to float; VT_BSTR goes through sToFloat.
MAPCFG_EXPORT void sVar2Flt(const VARIANT& var, float& out);
// As sVar2Dbl except: VT_UI4 gives its 32-bit pattern; VT_R4, VT_R8 and
// VT_DECIMAL trunc(value + 0.5); VT_CY its Hi; VT_DATE YYYYMMDD; VT_BSTR
// sStdNumber then sToInteger. Results beyond 32 bits give INT_MIN or INT_MAX.
MAPCFG_EXPORT void sVar2Long(const VARIANT& var, int32_t& out);
// As sVar2Long except that VT_R4, VT_R8 and VT_DECIMAL use sToInteger(double)
// (+0.49 / -0.5).
MAPCFG_EXPORT void sVar2Int(const VARIANT& var, int& out);
// sVar2Int, then true when non-zero.
MAPCFG_EXPORT void sVar2Bool(const VARIANT& var, bool& out);

}  // namespace mapcfg

#endif  // MAPCFG_UTILS_H_
