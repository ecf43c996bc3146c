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


// --- Map records: layers, frame, legend, scale, curve parameters ---------------
// The parts of a map's parameter set that every map kind shares, read from
// the map kind's block (its display name in the current language). Each
// reader sets every field: a key that is missing or empty takes the default
// below, any other value its scan ("%d", "%x", "%f", "%lf"; an unreadable
// value scans as 0) and then the clamps. Attribute records start from
// sInitLineProp, sInitPattProp(p, ratio) and sInitFontProp; a reader fills
// only the fields its keys name. Layouts are those of doc/records.md; the
// first of them is archive layout kMapRecordsVersion1 and any later change
// is guarded by the archive version.

// General map keys. Archive: Float PatternRatio, Byte VertWellMode, Float
// MapHVRatio, Float MapHorzExpand, Float MajorHigh, Float
// MapVertMajorIncrement.
struct _LayersProp {
  float PatternRatio = 0.0f;           // "PatternRatio": scale of every fill pattern; default 1, > 0
  uint8_t VertWellMode = 0;            // "VertWellMode": 1 wells drawn vertical, 0 deviated
  float MapHVRatio = 0.0f;             // "MapHVRatio": vertical to horizontal scale; default 1, > 0
  float MapHorzExpand = 0.0f;          // "MapHorzExpand": extra width on each side
  float MajorHigh = 0.0f;              // "MajorHigh": length of a major tick
  float MapVertMajorIncrement = 0.0f;  // "MapVertMajorIncrement": depth step of major ticks
};

// The map frame. Archive: the fields in order (Strings, Byte DrawMapInfo,
// Long FrameFlags, Floats, FONT_PROPs, Floats, LINE_PROP).
struct _MapFrameProp {
  String MapName;                 // "MapName"
  String MapMarkLabel;            // "MapMarkLabel": sheet mark
  uint8_t DrawMapInfo = 0;        // "DrawMapInfo": 1 draws the map information
  uint32_t FrameFlags = 0;        // "FrameFlags" (hex): help row 31; default 0x01
  float MapTickLength = 0.0f;     // "MapTickLength"
  float VScaleSpace = 0.0f;       // "VScaleSpace"
  float HScaleSpace = 0.0f;       // "HScaleSpace"
  float VGridLineSpace = 0.0f;    // "VGridLineSpace"
  float HGridLineSpace = 0.0f;    // "HGridLineSpace"
  float BoundOutExt = 0.0f;       // "BoundOutExt": margin outside the map's bounds
  FONT_PROP MapNameFont{};        // "MapNameFontHeight", "MapNameFontName", "MapNameFontClr" (hex)
  FONT_PROP MapLabelFont{};       // "MapLabelFontHeight"
  FONT_PROP MapInfoFont{};        // "MapInfoFontHeight", "MapInfoFontName", "MapInfoFontClr" (hex)
  float MajorScaleFontHeight = 0.0f;  // "MajorScaleFontHeight"
  float MinorScaleFontHeight = 0.0f;  // "MinorScaleFontHeight"
  LINE_PROP FrameBorder{};        // "FrameBorderWidth"
};

// One legend entry's drawing. Archive: Float SymbolRadius, LINE_PROP Line,
// FONT_PROP Font.
struct _LegendMetaProp {
  float SymbolRadius = 0.0f;  // "SymbolRadius"; default 2
  LINE_PROP Line{};           // "LineWidth"
  FONT_PROP Font{};           // "FontHeight"
};

// The legend. Archive: Byte Legend, LINE_PROP Border, PATT_PROP Ground, Float
// x3, Long BaseCharNumber, Float CharHeightRatio, Long LegendMetaCols, then
// the _LegendMetaProp.
struct _LegendProp {
  uint8_t Legend = 0;              // "Legend": 1 draws the legend; default 1
  LINE_PROP Border{};              // "LegendBorderWidth"
  PATT_PROP Ground{};              // "LegendGroundClr" (hex) into backColor
  float LineSpaceRatio = 0.0f;     // "LineSpaceRatio"; default 0.5
  float SegmentSpaceRatio = 0.0f;  // "SegmentSpaceRatio"; default 1
  float SymbolSpaceRatio = 0.0f;   // "SymbolSpaceRatio"; default 0.5
  int32_t BaseCharNumber = 0;      // "BaseCharNumber"; default 8, at least 1
  float CharHeightRatio = 0.0f;    // "CharHeightRatio"; default 1
  int32_t LegendMetaCols = 0;      // "LegendMetaCols"; default 1, at least 1
  _LegendMetaProp Meta;
};

// The scale bar. Archive: Float ScaleHeight, Long x2, Float x3, String x2,
// LINE_PROP Line.
struct _ScaleProp {
  float ScaleHeight = 0.0f;       // "ScaleHeight"; default 2
  int32_t ScaleMinorNumber = 0;   // "ScaleMinorNumber"; default 5
  int32_t ScaleMajorNumber = 0;   // "ScaleMajorNumber"; default 2
  float ScaleMajorSpace = 0.0f;   // "ScaleMajorSpace"; default 10
  float ScaleMinorFactor = 0.0f;  // "ScaleMinorFactor"; default 1
  float ScaleMajorFactor = 0.0f;  // "ScaleMajorFactor"; default 1
  String ScaleMinorUnit;          // "ScaleMinorUnit"
  String ScaleMajorUnit;          // "ScaleMajorUnit"
  LINE_PROP Line{};               // "ScaleLineWidth"
};

// How one curve is drawn. Archive: Double x3, LINE_PROP Line.
struct _CurveProp {
  double LeftValue = -999.25;     // value at the left edge; -999.25 unknown
  double RightValue = -999.25;    // value at the right edge; -999.25 unknown
  double InvalidValue = -999.25;  // samples equal to it are not drawn
  LINE_PROP Line{};
};

// A fill between a curve and another one ("" fills to the left edge).
// Archive: String Curve, PATT_PROP Patt.
struct _CrvFillItem {
  String Curve;
  PATT_PROP Patt{};
};

// A curve of a map kind. Keys of the block:
//   Curve = code; name; left value; right value; LineStyle; LineWidth; LineColor
//   FillingCurve = code; other curve's code; PatternName; PatternBGColor
//   CrvInvalidValue = the invalid value of every curve of the block (-999.25)
// A FillingCurve line adds a fill to the last curve read before it with that
// code (without case); one with no such curve is ignored. Archive: String
// Code, String Name, _CurveProp Prop, Long count + _CrvFillItem each.
struct _CurveParm {
  String Code;
  String Name;
  _CurveProp Prop;
  RecordArray<_CrvFillItem> Fills;
};

// The version of the first layout of the records above.
constexpr uint32_t kMapRecordsVersion1 = 0x03020001;

// Reads the block's general keys into `prop`; returns its PatternRatio, the
// ratio the block's pattern readers take.
MAPCFG_EXPORT float sCfgReadLayersProp(CCfgScript& script, const String& block, _LayersProp* prop);
// "HorzSpaceRatio" into hSpace, "VertSpaceRatio" into vSpace ("%lf"; 1 when
// missing or empty).
MAPCFG_EXPORT void sCfgReadHVSpaceProp(CCfgScript& script, const String& block, _HVSpaceProp* prop);
MAPCFG_EXPORT void sCfgReadMapFrameProp(CCfgScript& script, const String& block, _MapFrameProp* prop);
// The ground pattern takes `ratio`.
MAPCFG_EXPORT void sCfgReadLegendProp(CCfgScript& script, const String& block, _LegendProp* prop, float ratio);
MAPCFG_EXPORT void sCfgReadScaleProp(CCfgScript& script, const String& block, _ScaleProp* prop);
// Appends a record per "Curve" key in key order; fill patterns take `ratio`.
MAPCFG_EXPORT void sCfgReadCurveParms(CCfgScript& script, const String& block, RecordArray<_CurveParm>& parms,
                                      float ratio);
MAPCFG_EXPORT void sCfgClearCurveParms(RecordArray<_CurveParm>& parms);
// Field-by-field copies (destination first).
MAPCFG_EXPORT void sCfgCopyLayersProp(_LayersProp* dst, const _LayersProp* src);
MAPCFG_EXPORT void sCfgCopyMapFrameProp(_MapFrameProp* dst, const _MapFrameProp* src);
MAPCFG_EXPORT void sCfgCopyLegendProp(_LegendProp* dst, const _LegendProp* src);
MAPCFG_EXPORT void sCfgCopyScaleProp(_ScaleProp* dst, const _ScaleProp* src);
// Replaces `dst` with copies of the records of `src`.
MAPCFG_EXPORT void sCfgCopyCurveParms(RecordArray<_CurveParm>& dst, const RecordArray<_CurveParm>& src);
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
