// Catalogues and drawing attribute records: how lines, fills and texts are
// drawn, and the code tables every map looks codes up in (well status,
// interpretation results, lithology, symbol pictures, colours, text formats,
// data sources, label curves, contour parameters).
//
// The tables are process-wide. Readers (sCfgRead...) append the blocks of an
// open script, named in the current language (*sGetCfgLang()); they never
// clear a table first and report nothing. Getters (sCfgGet...Ptr) return
// pointers into the library's own storage: hosts may read and change the
// tables through them, never free them, and the pointers stay valid for the
// life of the library (sCfgClearPlate empties the tables, it does not move
// them). Codes are matched without regard to ASCII case.
//
// Archive layouts (the values of doc/archive_format.md, in order) are given
// beside each record; doc/records.md lists them with the script keys.
//
// Thread safety: none; call from the host's main thread.
#ifndef MAPCFG_CATALOGS_H_
#define MAPCFG_CATALOGS_H_

#include <cstdint>

#include "mapcfg/export.h"
#include "mapcfg/types.h"

namespace mapcfg {

class CCfgScript;

// Horizontal and vertical spacing of map items. Archived as two scalar
// doubles in member order (CFFArchive::PutHVSpaceProp).
struct _HVSpaceProp {
  double hSpace = 0.0;
  double vSpace = 0.0;
};

// --- Drawing attributes ---------------------------------------------------------
// Plain data of fixed size, embedded by value in most records. No
// constructors: `LINE_PROP line{}` is all zeros; the sInit... functions set
// the defaults. Names are NUL-terminated in their arrays.

// A stroked line. Archive: Long color, Float width, String style (read back
// cut to 39 bytes).
struct LINE_PROP {
  uint32_t color;
  float width;
  char style[40];
};

// A filled area. Archive: Long foreColor, Long backColor, Float ratio, String
// name (cut to 39 bytes); archives older than 0x02007344 hold one more Float
// after the ratio.
struct PATT_PROP {
  uint32_t foreColor;
  uint32_t backColor;
  float ratio;
  char name[40];
};

// A text font. Archive: Long color, Float height, Float fWidth, Float fAngle,
// Long weight, eight Bytes (charSet, flags[0..6]), String faceName (cut to 31
// bytes).
struct FONT_PROP {
  uint32_t color;
  float height;
  float fWidth;
  float fAngle;
  int32_t weight;
  uint8_t charSet;
  uint8_t flags[7];
  char faceName[32];
};

// color 0, width 0.05, style "" (only its first byte is cleared).
MAPCFG_EXPORT void sInitLineProp(LINE_PROP* line);
// foreColor 0, backColor 0xFFFFFF, ratio `ratio`, name "" (first byte only).
MAPCFG_EXPORT void sInitPattProp(PATT_PROP* patt, float ratio);
// color 0, height 24, fWidth 0, fAngle 0, weight 400, charSet 134, flags 0,
// faceName information text 1251 (cut to 31 bytes).
MAPCFG_EXPORT void sInitFontProp(FONT_PROP* font);
// Copy the whole record, name buffer included (destination first).
MAPCFG_EXPORT void sCopyLineProp(LINE_PROP* dst, const LINE_PROP* src);
MAPCFG_EXPORT void sCopyPattProp(PATT_PROP* dst, const PATT_PROP* src);
MAPCFG_EXPORT void sCopyFontProp(FONT_PROP* dst, const FONT_PROP* src);
// 1 when equal, else 0: colours, weights and bytes bit for bit, floats within
// 0.0005 (exclusive), names without regard to ASCII case.
MAPCFG_EXPORT int sCmpLineProp(const LINE_PROP* a, const LINE_PROP* b);
MAPCFG_EXPORT int sCmpPattProp(const PATT_PROP* a, const PATT_PROP* b);
MAPCFG_EXPORT int sCmpFontProp(const FONT_PROP* a, const FONT_PROP* b);

// --- Well-status, interpretation and lithology catalogues ---------------------
// Each is a codes array kept in ascending order without case (a repeated
// code goes after the equal one) beside a parallel array of the records it
// owns. Script blocks: "ClassificationCorrelation", "InterpretationCorrelation"
// and "LithologyCorrelation" (Chinese "井别符号对照表", "解释符号配置表",
// "岩性符号配置表"); each key is a code, its value the record's fields.

// Value "name; color(hex); displayNo; color2(hex)".
// Archive: String name, Long color, Long displayNo, Long color2.
struct _StatusProp {
  String name;
  uint32_t color = 0;
  int32_t displayNo = 0;
  uint32_t color2 = 0;
};

// Value "type: density; symbolName; patternBG(hex); patternName; displayNo;
// standardName; patternColor(hex)". Archive: the fields in order, Strings
// and Longs.
struct _IntepretProp {
  String type;
  int32_t density = 0;
  String symbolName;
  uint32_t patternBG = 0;
  String patternName;
  int32_t displayNo = 0;
  String standardName;
  uint32_t patternColor = 0;
};

// Value "name: ratio; symbolName; patternName; color(hex); displayNo".
// Archive: String name, Double ratio, String symbolName, String patternName,
// Long color, Long displayNo.
struct _LithProp {
  String name;
  double ratio = 0.0;
  String symbolName;
  String patternName;
  uint32_t color = 0;
  int32_t displayNo = 0;
};

MAPCFG_EXPORT StringArray* sCfgGetStatusCodesPtr();
MAPCFG_EXPORT RecordArray<_StatusProp>* sCfgGetStatusPropsPtr();
MAPCFG_EXPORT StringArray* sCfgGetInterpretCodesPtr();
MAPCFG_EXPORT RecordArray<_IntepretProp>* sCfgGetInterpretPropsPtr();
MAPCFG_EXPORT StringArray* sCfgGetLithCodesPtr();
MAPCFG_EXPORT RecordArray<_LithProp>* sCfgGetLithPropsPtr();

// Insert every key of the catalogue's block in code order.
MAPCFG_EXPORT void sCfgReadStatusProps(CCfgScript& script);
MAPCFG_EXPORT void sCfgReadInterpretProps(CCfgScript& script);
MAPCFG_EXPORT void sCfgReadLithProps(CCfgScript& script);

// The record of `code`; when there is none and `exact` is 0, the record of
// "Default" ("缺省" in Chinese); else null. Owned by the catalogue.
MAPCFG_EXPORT _StatusProp* sCfgFindStatusProp(const String& code, int exact);
MAPCFG_EXPORT _IntepretProp* sCfgFindInterpretProp(const String& code, int exact);
MAPCFG_EXPORT _LithProp* sCfgFindLithProp(const String& code, int exact);

// Field-by-field copies (destination first).
MAPCFG_EXPORT void sCfgCopyStatusProp(_StatusProp* dst, const _StatusProp* src);
MAPCFG_EXPORT void sCfgCopyInterpretProp(_IntepretProp* dst, const _IntepretProp* src);
MAPCFG_EXPORT void sCfgCopyLithProp(_LithProp* dst, const _LithProp* src);

// The interpretation record of `code` (exact match): type, density cut to one
// byte, symbol, pattern background, pattern name and colour. Unknown code:
// "" , 0, "", 0xFFFFFF, "", 0.
MAPCFG_EXPORT void sCfgGetResultPropByCode(const String& code, String& type, char& density, String& symbolName,
                                           uint32_t& patternBG, String& patternName, uint32_t& patternColor);

// Splits a Chinese lithology description (colour + oil show + modifiers +
// base lithology) into its parts and finds a symbol for each. `description`
// is left holding the base lithology (part 1). parts[0..3] are parts 1 to 4
// (base lithology, structure, lithology prefix, containing material) and
// symbols[i] the symbol of parts[i]. Returns 4.
MAPCFG_EXPORT int sCfgGetLithPropByCode(String& description, String& oilShow, String& colorName, String& lithName,
                                        double& ratio, String parts[4], String symbols[4], String& patternName,
                                        String& oilShowSymbol, uint32_t& color);

// --- Symbol, colour and text-format catalogues ---------------------------------

// Name-to-picture catalogues, names ascending without case: oil-gas shows
// (YQXS, "OilGasControlTable"), containing materials (HYW,
// "MaterialContainingTable"), lithology prefixes (YXQZ,
// "LithPrefixCorrelation"), structure symbols (GZFH, "StructureSymbolTable").
MAPCFG_EXPORT StringArray* sCfgGetYQXSNamesPtr();
MAPCFG_EXPORT StringArray* sCfgGetYQXSPictsPtr();
MAPCFG_EXPORT StringArray* sCfgGetHYWNamesPtr();
MAPCFG_EXPORT StringArray* sCfgGetHYWPictsPtr();
MAPCFG_EXPORT StringArray* sCfgGetYXQZNamesPtr();
MAPCFG_EXPORT StringArray* sCfgGetYXQZPictsPtr();
MAPCFG_EXPORT StringArray* sCfgGetGZFHNamesPtr();
MAPCFG_EXPORT StringArray* sCfgGetGZFHPictsPtr();
MAPCFG_EXPORT void sCfgReadYQXSs(CCfgScript& script);
MAPCFG_EXPORT void sCfgReadHYWs(CCfgScript& script);
MAPCFG_EXPORT void sCfgReadYXQZs(CCfgScript& script);
MAPCFG_EXPORT void sCfgReadGZFHs(CCfgScript& script);
// The picture of `name`, or "" when it is absent.
MAPCFG_EXPORT String sCfgFindYQXS(const String& name);
MAPCFG_EXPORT String sCfgFindHYW(const String& name);
MAPCFG_EXPORT String sCfgFindYXQZ(const String& name);
MAPCFG_EXPORT String sCfgFindGZFH(const String& name);

// Colours by name ("ColorTable"), names ascending without case, values hex.
MAPCFG_EXPORT StringArray* sCfgGetColorNamesPtr();
MAPCFG_EXPORT std::vector<uint32_t>* sCfgGetColorsPtr();
MAPCFG_EXPORT void sCfgReadColors(CCfgScript& script);
// The colour of `name`, or 0xFFFFFF when it is absent.
MAPCFG_EXPORT uint32_t sCfgFindColor(const String& name);

// The sixteen preset colours ("Init_Colors"): the first of 16.
MAPCFG_EXPORT uint32_t* sCfgGetPrevColorPtr();
// Slot i takes the i-th value (hex) of the block, at most 16; slots past the
// block's keys become white (0xFFFFFF).
MAPCFG_EXPORT void sCfgReadPrevColor(CCfgScript& script);

// A text format ("Text_Format"). Value: groups separated by ":", parts by
// ";": texts1[0..2] : texts2[0..1]; num1 : num2 : char1 : upper1 : upper2 :
// num3 : char2 : text3. char1 and char2: "[SPACE]" or empty gives a blank,
// "[RETURN]" a line feed, else the first character in upper case.
struct _TextFmt {
  String texts1[3];
  String texts2[2];
  int32_t num1 = 0;
  int32_t num2 = 0;
  char char1 = 0;
  String upper1;
  String upper2;
  int32_t num3 = 0;
  char char2 = 0;
  String text3;
};

MAPCFG_EXPORT StringArray* sCfgGetTextFmtNamesPtr();
MAPCFG_EXPORT RecordArray<_TextFmt>* sCfgGetTextFmtsPtr();
// Appends a record and its name for every key with a non-empty value.
MAPCFG_EXPORT void sCfgReadTextFmts(CCfgScript& script);
// Frees the records and empties both arrays.
MAPCFG_EXPORT void sCfgClearTextFmts();

// Data sources ("Data_Source"): names and values in key order.
MAPCFG_EXPORT StringArray* sCfgGetDataSrcNamesPtr();
MAPCFG_EXPORT StringArray* sCfgGetDataSrcValsPtr();
MAPCFG_EXPORT void sCfgReadDataSrcs(CCfgScript& script);

// Label curves ("Label_Curve"): codes ascending without case, value texts.
MAPCFG_EXPORT StringArray* sCfgGetLabelCrvCodesPtr();
MAPCFG_EXPORT StringArray* sCfgGetLabelCrvValsPtr();
MAPCFG_EXPORT void sCfgReadLabelCrvs(CCfgScript& script);
// The value of `code`, or "" when it is absent.
MAPCFG_EXPORT String sCfgFindLabelCrv(const String& code);

// Contour-generation parameters ("ContourCreatingParameters"): each value
// "code; value" appends the pair when the value is not empty.
MAPCFG_EXPORT StringArray* sCfgGetIsoPropCodesPtr();
MAPCFG_EXPORT StringArray* sCfgGetIsoPropValsPtr();
MAPCFG_EXPORT void sCfgIsoLineProp(CCfgScript& script);

// --- Production and test display ----------------------------------------------
// How the two small diagrams beside a well of a well location map are drawn:
// its production status and its oil-test result. One process-wide record of
// each; the readers take their keys from the block "Well Location Map"
// ("井位图"). Plain data without constructors, like the attribute records.

// Archive: six Bytes (correDate .. correMode), line, oilPatt, waterPatt,
// inpourPatt, lblFont; the line and the patterns are read with the archive
// version (see LINE_PROP and PATT_PROP).
struct _OldProdProp {
  uint8_t correDate, statMode, dataMode, pictShape, factorMode, correMode;
  LINE_PROP line;
  PATT_PROP oilPatt, waterPatt, inpourPatt;
  FONT_PROP lblFont;
};

// Archive: three Bytes (pictShape, factorMode, ratiusMode), line, oilPatt,
// waterPatt, lblFont, as _OldProdProp.
struct _OldTestProp {
  uint8_t pictShape, factorMode, ratiusMode;
  LINE_PROP line;
  PATT_PROP oilPatt, waterPatt;
  FONT_PROP lblFont;
};

MAPCFG_EXPORT _OldProdProp* sCfgGetOldProdPropPtr();
MAPCFG_EXPORT _OldTestProp* sCfgGetOldTestPropPtr();
// Fill the record from the block; an empty or missing key gives its
// default. Mode bytes (sToInteger, kept in one byte): production 1, 1, 0, 0,
// 0, 2, test 0, 0, 2. The line: style cut to 39 bytes, width 0.5 and colour 0
// by default. Each pattern: name cut to 39 bytes, backColor the colour key
// (0 by default), foreColor 0, ratio `ratio`. The label font starts from
// sInitFontProp; its face name is cut to 31 bytes, "Arial" ("黑体" in
// Chinese) when empty, and the label font height key goes into lblFont.color
// (height stays 24), as scripts of the suite have always been read.
MAPCFG_EXPORT void sCfgReadOldProdProp(CCfgScript& script, _OldProdProp* prop, float ratio);
MAPCFG_EXPORT void sCfgReadOldTestProp(CCfgScript& script, _OldTestProp* prop, float ratio);
// Copy the whole record (destination first).
MAPCFG_EXPORT void sCfgCopyOldProdProp(_OldProdProp* dst, const _OldProdProp* src);
MAPCFG_EXPORT void sCfgCopyOldTestProp(_OldTestProp* dst, const _OldTestProp* src);

}  // namespace mapcfg

#endif  // MAPCFG_CATALOGS_H_
