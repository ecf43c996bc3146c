// Map-type templates.
#ifndef MAPCFG_MAPS_H_
#define MAPCFG_MAPS_H_

#include <cstdint>
#include <memory>
#include <vector>

#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/export.h"
#include "mapcfg/values.h"
#include "mapcfg/types.h"

namespace mapcfg {

class CCfgScript;

// --- Section maps: reservoir profile, fence and multi-well correlation ---------
// Each of the three kinds keeps its own set of the records below; none is
// shared. The getters take the kind's display name in the current language
// ("Reservoir Profile Map", "Fence Map", "Multi-well Correlation Map" or their
// Chinese names), compared exactly, and return null for any other name; the
// fence map has no depth ruler and no model-line flags. Readers fill a record
// from the keys of a script block (in the current language); a missing key
// keeps the default of its reader. The archive layouts are in doc/records.md.

// Automatic creation. Archive: Byte flag0, Byte FlattenByElev, Point1 and
// Point2 as PutDblPoint, Byte CreateByHoleSection, Float TopVD, Float
// BottomVD, Short AutoCreateFlags, Byte FixedSpaceNegative, Float FixedSpace,
// String Text.
struct _PMTAutoParm {
  uint8_t flag0;
  uint8_t FlattenByElev;
  CDblPoint Point1;
  CDblPoint Point2;
  uint8_t CreateByHoleSection;
  float TopVD;
  float BottomVD;
  uint16_t AutoCreateFlags;
  uint8_t FixedSpaceNegative;  // FixedSpace was negative in the script
  float FixedSpace;            // always the magnitude
  String Text;
};

// Map properties. Archive: Byte HoleAxialLine, Short LayerDispFlags, Short
// PlaneDispFlags, Float FaultDisplacement, Double Rlev, EffectiveVal1,
// EffectiveVal2, String PerforationSymbol, Double LeastInterlayer, the two
// fills, the six lines, Byte SublayerFillLith. PerforationPlug and
// PerforationUnplug are not archived.
struct _PMTMapProp {
  uint8_t HoleAxialLine;
  uint16_t LayerDispFlags;
  uint16_t PlaneDispFlags;
  float FaultDisplacement;
  double Rlev;
  double EffectiveVal1;
  double EffectiveVal2;
  String PerforationSymbol;
  String PerforationPlug;
  String PerforationUnplug;
  double LeastInterlayer;
  PATT_PROP FmtGroundPatt;
  PATT_PROP SublayerPatt;
  LINE_PROP FmtTLine, FmtBLine, SublTLine, SublBLine, InteTLine, InteBLine;
  uint8_t SublayerFillLith;
};

// Well body. Archive: the fields in order; the bytes as Byte, the line and
// the font as PutLineProp and PutFontProp.
struct _PMTBodyProp {
  uint8_t WHeadDispFlags;
  float WNameUOffset, WSymbolUOffset, WSymbolRadius;
  double HoleWidth, WellLftLinePosition, WellRgtLinePosition;
  float HoleUSpace, HoleDSpace, CHeadNameFontHeight, CHeadScaleFontHeight;
  double LayerLeftPos, LayerRightPos, InteSymbolLPos, InteSymbolRPos;
  uint8_t BeforeGridNumber, AfterGridNumber;
  LINE_PROP HoleBorder;
  FONT_PROP WNameFont;
  float Reserved;
};

// Depth ruler. Archive: the fields in order, RulerScaleSpace as Long.
struct _PMTLableProp {
  float RulerHOffset, RulerLineOffset, RulerTickLength;
  int32_t RulerScaleSpace;
  LINE_PROP RulerLine;
  float RulerMarkWidth;
  FONT_PROP RulerFmtFont;
  float RulerScaleFontHeight;
};

MAPCFG_EXPORT _PMTAutoParm* sCfgGetPMTAutoParmPtr(const String& name);
MAPCFG_EXPORT _PMTMapProp* sCfgGetPMTMapPropPtr(const String& name);
MAPCFG_EXPORT _PMTBodyProp* sCfgGetPMTBodyPropPtr(const String& name);
MAPCFG_EXPORT _PMTLableProp* sCfgGetPMTLabelPropPtr(const String& name);
// The model-line flag byte (bit 0: the model lines are smoothed).
MAPCFG_EXPORT char* sCfgGetPMTModelPropPtr(const String& name);
MAPCFG_EXPORT LINE_PROP* sCfgGetPMTFaultPropPtr(const String& name);
MAPCFG_EXPORT LINE_PROP* sCfgGetPMTDiviPropPtr(const String& name);

// flag0 0, Text empty, the points left as they are; a negative FixedSpace is
// stored as its magnitude with FixedSpaceNegative 1.
MAPCFG_EXPORT void sCfgReadPMTAutoParm(CCfgScript& script, const String& block, _PMTAutoParm* parm);
// Rlev 0.125 and the effective values -999.25 when empty; LeastInterlayer 0.1
// when not above 0; both fills white with ratio `ratio`, FmtGroungClr the
// colour of the first; the six lines reset, widths from their keys (a
// negative width is 0).
MAPCFG_EXPORT void sCfgReadPMTMapProp(CCfgScript& script, const String& block, _PMTMapProp* prop, float ratio);
// The border line with colour 0 and no style; the name font from
// sInitFontProp, its height 16 when not above 0; Reserved 0.
MAPCFG_EXPORT void sCfgReadPMTBodyProp(CCfgScript& script, const String& block, _PMTBodyProp* prop);
// RulerLineOffset 10, line width 1 and RulerMarkWidth 0.25 when empty;
// RulerScaleSpace 10 when 0; the formation font from sInitFontProp.
MAPCFG_EXPORT void sCfgReadPMTLabelProp(CCfgScript& script, const String& block, _PMTLableProp* prop);
// "SmoothModelLine" in hexadecimal, "0x" put before a value without it.
MAPCFG_EXPORT void sCfgReadPMTModelProp(CCfgScript& script, const String& block, char* flags);
// Colour 0, no style, width from "FaultLineWidth" or "BoundaryLineWidth".
MAPCFG_EXPORT void sCfgReadPMTFaultProp(CCfgScript& script, const String& block, LINE_PROP* line);
MAPCFG_EXPORT void sCfgReadPMTDiviProp(CCfgScript& script, const String& block, LINE_PROP* line);

MAPCFG_EXPORT void sCfgCopyPMTAutoParm(_PMTAutoParm* dst, const _PMTAutoParm* src);
MAPCFG_EXPORT void sCfgCopyPMTMapProp(_PMTMapProp* dst, const _PMTMapProp* src);
MAPCFG_EXPORT void sCfgCopyPMTBodyProp(_PMTBodyProp* dst, const _PMTBodyProp* src);
MAPCFG_EXPORT void sCfgCopyPMTLabelProp(_PMTLableProp* dst, const _PMTLableProp* src);
MAPCFG_EXPORT void sCfgCopyPMTModelProp(char* dst, const char* src);
MAPCFG_EXPORT void sCfgCopyPMTFaultProp(LINE_PROP* dst, const LINE_PROP* src);
MAPCFG_EXPORT void sCfgCopyPMTDiviProp(LINE_PROP* dst, const LINE_PROP* src);

// --- End of the section maps ----------------------------------------------------
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

// --- Single-well charts -----------------------------------------------------------
// A single-well chart is drawn from a template: a tree of tracks, each with
// its display properties, the curves drawn in it and its own child tracks.
// The registry keeps the templates by name; records of the tree own their
// children (RecordArray), so a copy of a tree is always deep.

// Chart-wide curve properties, from the block "Single Well Map" ("单井图").
// Archive: Double Rlev, EffectiveVal1, EffectiveVal2, String
// PerforationSymbol; the plugged and unplugged symbols are not archived.
struct _DJTMapProp {
  double Rlev = 0.0;           // "Rlev": curve sampling interval; 0.125 when empty
  double EffectiveVal1 = 0.0;  // "EffectiveVal1", "EffectiveVal2": valid-value limits;
  double EffectiveVal2 = 0.0;  //   -999.25 when empty
  String PerforationSymbol;    // "Perforation Symbol"
  String PerforationPlug;      // "PerforationPlug"
  String PerforationUnplug;    // "PerforationUnplug"
};

// One track's display. In a script it is the value of the key that names
// the track: 28 comma-separated positions (doc/records.md). Archive: String
// Name, Title, Double Left, Right, Width, Byte Flags, Long Int1..Int5, the
// three lines, the three fonts, Double Dbl1..Dbl3.
struct _DJTTrackProp {
  String Name;             // 0; "\r\n" and "\n" written literally are line breaks
  String Title;            // 1; as Name
  double Left = 0.0;       // 2
  double Right = 0.0;      // 3; Left + 1 when equal to Left (within 5e-7)
  double Width = 0.0;      // 4; Right - Left when not above 0
  uint8_t Flags = 0;       // 5 (hexadecimal)
  int32_t Int1 = 0;        // 6; at most 100
  int32_t Int2 = 0;        // 7; 1 to 5
  int32_t Int3 = 0;        // 8
  int32_t Int4 = 0;        // 23; at most 100
  int32_t Int5 = 0;        // 24
  LINE_PROP Line1{};       // style 9, width 10, colour 11 (hexadecimal)
  LINE_PROP Line2{};       // 12, 13, 14
  LINE_PROP Line3{};       // 25, 26, 27
  FONT_PROP Font1{};       // face 15, height 16, colour 17 (hexadecimal)
  FONT_PROP Font2{};       // face 18, height 19, colour 20 (hexadecimal), fWidth 21
  FONT_PROP Font3{};       // Font2's face, height 22
  double Dbl1 = 0.0, Dbl2 = 0.0, Dbl3 = 0.0;  // not in scripts; archived
};

// A track: its display, its curves (owned) and its child tracks (owned).
// Archive: the _DJTTrackProp, the curve array (PutCurveParmArray), then the
// child array as Long count + each track.
struct _DJTTrack {
  _DJTTrackProp Prop;
  RecordArray<_CurveParm> Curves;
  RecordArray<_DJTTrack> Children;
};

// A template. Archive: String Name, Long Value, Double Dbls[0..4], LINE_PROP
// Line, FONT_PROP Font, Texts (PutStringArray), then the track array.
struct _DJTTempl {
  String Name;
  int32_t Value = 0;
  double Dbls[5] = {};
  LINE_PROP Line{};
  FONT_PROP Font{};
  StringArray Texts;
  RecordArray<_DJTTrack> Tracks;  // top-level tracks
};

// The registry: the template names and, at the same index, the templates.
struct _CfgMapSingle {
  StringArray Names;
  RecordArray<_DJTTempl> Templs;
};

// Depth of a track tree, top-level tracks being level 1, beyond which no
// reader goes: the script reader reads no children of a track at this level
// and the archive readers fail with error 539 on a track below it. Deep
// enough for any chart, shallow enough for a small stack.
constexpr int kMaxTrackDepth = 256;
// Tracks one script read creates at most (sCfgReadDJTTrack, or every
// template of sCfgReadMapSingle together); what lies beyond is not read.
constexpr int kMaxTrackCount = 65536;
// Key rows one script read visits at most: each track visits the rows of its
// block once (a block read by many tracks counts for each). Bounds the
// curves a fan-out of blocks can copy.
constexpr int kMaxTrackRows = 1 << 18;

// The single instances, owned by the store; never null.
MAPCFG_EXPORT _DJTMapProp* sCfgGetDJTMapPropPtr();
MAPCFG_EXPORT _CfgMapSingle* sCfgGetMapSinglePtr();
// Rlev, the effective values and the perforation symbols of "Single Well
// Map", with the rules of the section maps' keys of the same names.
MAPCFG_EXPORT void sCfgReadDJTMapProp(CCfgScript& script, _DJTMapProp* prop);
// Field copies (destination first).
MAPCFG_EXPORT void sCfgCopyDJTMapProp(_DJTMapProp* dst, const _DJTMapProp* src);
MAPCFG_EXPORT void sCfgCopyDJTTrackProp(_DJTTrackProp* dst, const _DJTTrackProp* src);
// Reads `track` from `value` (the 28 positions), appends the curves of
// `block` (sCfgReadCurveParms with `arg`) and, for every key of `block` in
// key order other than "Curve" ("曲线", case ignored), appends a child read
// the same way from the block named by the key and the key's value. Stops at
// kMaxTrackDepth, kMaxTrackCount and kMaxTrackRows.
MAPCFG_EXPORT void sCfgReadDJTTrack(CCfgScript& script, const String& block, const String& value, _DJTTrack* track,
                                    float arg);
// The first template of the registry whose name equals `name` ignoring
// ASCII case, or null. Owned by the registry.
MAPCFG_EXPORT _DJTTempl* sCfgFindDJTTempl(const char* name);
// Free a track or a template and everything it owns. Pass a pointer no
// unique_ptr owns any more (release() it first); null is ignored.
MAPCFG_EXPORT void sCfgDelDJTTrack(_DJTTrack* track);
MAPCFG_EXPORT void sCfgDelDJTTempl(_DJTTempl* templ);
// Appends the templates the script lists (block "SingleWellTemplate", see
// doc/records.md) to the registry, after reading the layers, the spacing and
// the chart properties from "Single Well Map".
MAPCFG_EXPORT void sCfgReadMapSingle(CCfgScript& script);
// The single-well stream: Layers, HVSpace (as PutDblPoint), DJTMapProp, the
// registry's names (PutStringArray), then its templates (template array).
// The reader appends names and templates to the registry. Both return the
// archive's error text, "" on success; a tree deeper than kMaxTrackDepth is
// not written (error 539).
MAPCFG_EXPORT String sCfgWriteMapSingle(CFFArchive& archive);
MAPCFG_EXPORT String sCfgReadMapSingle(CFFArchive& archive, uint32_t version);

// What a linter may want to know about the track trees of a script, as
// sCfgReadMapSingle would read them in the current language. Each finding
// names the block and the index of the key concerned (the key of block
// "SingleWellTemplate" for a template's own block).
struct DJTTreeFinding {
  enum Kind : char {
    kNamesAncestor,  // the key names its own block or an ancestor's
    kNoBlock,        // no block has the name of the key's track (or template)
    kTooDeep,        // the key's track would be deeper than kMaxTrackDepth: not read
    kTooMany,        // the read stops at this key: kMaxTrackCount or kMaxTrackRows reached
  };
  Kind kind;
  String block;   // as the script writes it
  int key;        // index of the key in `block`
  String name;    // the key's track (or template) block name
  int depth;      // the track's level (1 top-level), 0 for a template
};
// Each finding once, in the order the reader meets them. The caller owns
// the result; the script is not changed.
MAPCFG_EXPORT std::vector<DJTTreeFinding> sCfgCheckMapSingle(const CCfgScript& script);

// --- Whole map kinds -------------------------------------------------------------
// Each of the four kinds (well location map and the three section maps) has
// its own layers, spacing, frame, legend, scale and curve parameters besides
// the records above. A kind is read from the one block named by its display
// name in the current language, and archived as one stream:
//   section maps: Layers, HVSpace (as PutDblPoint), PMTAutoParm, PMTMapProp,
//     MapFrame, PMTBodyProp, PMTLabelProp (not the fence map), Legend, Scale,
//     the model flag as a Byte (not the fence map), fault line, division
//     line, CurveParmArray;
//   well location map: Layers, HVSpace, JWTAutoParm, JWTMapProp, MapFrame,
//     Legend, Scale, OldProdProp, OldTestProp.
// The stream readers hand the version to every record that takes one, stop
// at the first failure and return the archive's error text ("" on success);
// records read before it keep what they received.

// The kind's own records, by its display name in the current language; null
// for any other name. Owned by the store.
MAPCFG_EXPORT _LayersProp* sCfgGetLayersPropPtr(const String& kind);
MAPCFG_EXPORT _HVSpaceProp* sCfgGetHVSpacePropPtr(const String& kind);
MAPCFG_EXPORT _MapFrameProp* sCfgGetMapFramePropPtr(const String& kind);
MAPCFG_EXPORT _LegendProp* sCfgGetLegendPropPtr(const String& kind);
MAPCFG_EXPORT _ScaleProp* sCfgGetScalePropPtr(const String& kind);
MAPCFG_EXPORT RecordArray<_CurveParm>* sCfgGetCurveParmsPtr(const String& kind);

MAPCFG_EXPORT void sCfgReadMapReserv(CCfgScript& script);
MAPCFG_EXPORT String sCfgWriteMapReserv(CFFArchive& archive);
MAPCFG_EXPORT String sCfgReadMapReserv(CFFArchive& archive, uint32_t version);
MAPCFG_EXPORT void sCfgReadMapFence(CCfgScript& script);
MAPCFG_EXPORT String sCfgWriteMapFence(CFFArchive& archive);
MAPCFG_EXPORT String sCfgReadMapFence(CFFArchive& archive, uint32_t version);
MAPCFG_EXPORT void sCfgReadMapCorrel(CCfgScript& script);
MAPCFG_EXPORT String sCfgWriteMapCorrel(CFFArchive& archive);
MAPCFG_EXPORT String sCfgReadMapCorrel(CFFArchive& archive, uint32_t version);
MAPCFG_EXPORT void sCfgReadMapWellLoc(CCfgScript& script);
MAPCFG_EXPORT String sCfgWriteMapWellLoc(CFFArchive& archive);
MAPCFG_EXPORT String sCfgReadMapWellLoc(CFFArchive& archive, uint32_t version);

// --- Plane shapes: pinch-out and division line templates -----------------------
// How the pinch-out lines of a layer (upper, middle, lower) and the division
// lines between zones of a plane map are drawn: a line with tips repeated
// along it. Each template is read from a block of its own; the block
// "Pinch-out" ("尖灭") names the three pinch-out templates' blocks, the block
// "Division" ("分界") is the division template itself and names the block of
// the horizontal boundary line's template; a name that is empty or missing
// is the block named like its key ("UpPinch-outTemplate" ...). Layouts are
// those of doc/records.md; the first of them is archive layout
// kShapeTemplsVersion1 and any later change is guarded by the archive
// version.

// A template. Archive: String Name, Float DivisionLength, Float DiviInterval,
// Long MinTipNumber, Long MaxTipNumber, Byte TipShape, Float TipHeight,
// LINE_PROP Line, PATT_PROP TipPatt.
struct _PlaneShapeTempl {
  String Name;                // the block it was read from
  float DivisionLength = 0;   // "DivisionLength": length of a tip along the line; default 2, > 0
  float DiviInterval = 0;     // "DiviInterval": from one tip to the next; default 5, > 0
  int32_t MinTipNumber = 0;   // "MinTipNumber": tips even on a short line; default 1, >= 0
  int32_t MaxTipNumber = 0;   // "MaxTipNumber": tips at most; default 100, >= MinTipNumber
  uint8_t TipShape = 0;       // "tip" field 1: 0 triangle, 1 tick, 2 half circle
  float TipHeight = 0;        // "tip" field 2: height across the line; default 1, > 0
  LINE_PROP Line{};           // "tip" fields 3-5: LineStyle; LineWidth; LineColor
  PATT_PROP TipPatt{};        // "tip" fields 6-7: PatternName; PatternBGColor (fills the tips)
};

// A division type drawn without a boundary line: a band of its pattern
// marks the passage from one zone to the next. Archive: String Name, Float
// Width, PATT_PROP Patt.
struct _NoDiviType {
  String Name;
  float Width = 0;  // width of the band; not below 0
  PATT_PROP Patt{};
};

// The roles of the store's plane-shape templates (sCfgGetPlaneShapeTemplPtr).
enum PlaneShapeRole : int {
  kUpPinchOut,    // "UpPinch-outTemplate" of the block "Pinch-out"
  kMidPinchOut,   // "MidPinch-outTemplate"
  kDownPinchOut,  // "DownPinch-outTemplate"
  kDivision,      // the block "Division"
  kHorzBoundary,  // "Horizontal Boundary line" of the block "Division"
  kPlaneShapeRoleCount
};

// The version of the first layout of the plane-shape and migration records.
constexpr uint32_t kShapeTemplsVersion1 = 0x03030001;

// The store's template of `role`; null outside 0 .. kPlaneShapeRoleCount - 1.
// Owned by the store.
MAPCFG_EXPORT _PlaneShapeTempl* sCfgGetPlaneShapeTemplPtr(int role);
// The store's division types without a boundary line. Owned by the store.
MAPCFG_EXPORT RecordArray<_NoDiviType>* sCfgGetNoDiviTypesPtr();

// Sets every field of the caller's `templ` from the keys of `block`: Name
// is `block`, DivisionLength, DiviInterval, MinTipNumber, MaxTipNumber as
// above, and
//   tip = shape; height; LineStyle; LineWidth; LineColor; PatternName; PatternBGColor
// (a shape outside 0..2 is 0; the line and the pattern start from
// sInitLineProp and sInitPattProp(p, ratio), an empty field keeps theirs).
MAPCFG_EXPORT void sCfgReadPlaneShapeTempl(CCfgScript& script, const String& block, _PlaneShapeTempl* templ,
                                           float ratio);
// Appends a record per "NoBoundDiviType" key of `block`, in key order:
//   NoBoundDiviType = name; width; PatternName; PatternBGColor
// A row without a name is skipped; the pattern takes `ratio`.
MAPCFG_EXPORT void sCfgReadNoDiviTypes(CCfgScript& script, const String& block, RecordArray<_NoDiviType>& types,
                                       float ratio);
// The whole table: the five templates (from the block "Division" and the
// blocks that it and "Pinch-out" name; an absent block gives every default)
// and the division's types, appended. Patterns take the ratio 1.
MAPCFG_EXPORT void sCfgReadPlaneShapes(CCfgScript& script);
// The five templates in role order, then Long count and each _NoDiviType.
// Returns the archive's error text ("" on success).
MAPCFG_EXPORT String sCfgWritePlaneShapes(CFFArchive& archive);
// Reads what sCfgWritePlaneShapes wrote, the types appended; stops at the
// first failure and returns the archive's error text. An archive older than
// kShapeTemplsVersion1 holds none of it: nothing is read and "" returned.
MAPCFG_EXPORT String sCfgReadPlaneShapes(CFFArchive& archive, uint32_t version);
// Resets the five templates and frees the types.
MAPCFG_EXPORT void sCfgClearPlaneShapes();
// Field-by-field copies (destination first).
MAPCFG_EXPORT void sCfgCopyPlaneShapeTempl(_PlaneShapeTempl* dst, const _PlaneShapeTempl* src);
MAPCFG_EXPORT void sCfgCopyNoDiviType(_NoDiviType* dst, const _NoDiviType* src);

// --- Data migration: export and import templates --------------------------------
// How wells' data is copied out of the suite's database ("Data_Migrate",
// "数据迁出") and into it ("Data_Immigrate", "数据迁入"). In either block a
// key without "|" starts a template of that name, its value listing the
// columns; its parameters are keys of the template's name followed by a
// "|..." suffix, written without blanks around the "|":
//   Well location = WELL_NAME: WELL_ID; WELL_HEAD_X: X; WELL_HEAD_Y: Y
//   Well location|Source SQL Sentence = SELECT * FROM WELL_LOC
//   Well location|Target SQL Sentence = SELECT * FROM WELL_LOCATION
//   Well location|Main key Parallelism = WELL_NAME: WELL_ID
//   Well location|Well Code Parallelism = WELL_NAME; WELL_ID
//   Well location|Immigrate Parameter = 03
//   Well location|DIP Parameter = 0WELL_ID; 1DEPT; 2DEVI; 3AZIM

// One column of a template. Archive: String Target, String Source, Byte Key.
struct _MigraItem {
  String Target;    // the column written
  String Source;    // the column (or expression) read; "" the same name as Target
  uint8_t Key = 0;  // 1: the column is part of the key that matches rows
};

// A template. Archive: String Name, String SourceSQL, String TargetSQL, Long
// Params, String WellTarget, String WellSource, StringArray DipColumns, Long
// count + _MigraItem each.
struct _MigraTempl {
  String Name;
  String SourceSQL;        // "|Source SQL Sentence": selects the rows to copy
  String TargetSQL;        // "|Target SQL Sentence": opens the table written
  uint32_t Params = 0;     // "|Immigrate Parameter" (hex): 0x01 replace rows of the same key,
                           // 0x02 add wells the target lacks, 0x04 convert depths to the target's unit
  String WellTarget;       // "|Well Code Parallelism": the well column written;
  String WellSource;       //   and the one read
  StringArray DipColumns;  // "|DIP Parameter": deviation columns, each its field number and name
  RecordArray<_MigraItem> Items;
};

// The store's export (Data_Migrate) and import (Data_Immigrate) templates,
// in key order. Owned by the store.
MAPCFG_EXPORT RecordArray<_MigraTempl>* sCfgGetMigraTemplsPtr();
MAPCFG_EXPORT RecordArray<_MigraTempl>* sCfgGetImmigraTemplsPtr();
// The first export (immigrate 0) or import (otherwise) template named
// `name` (ASCII case ignored), or null. Owned by the store.
MAPCFG_EXPORT _MigraTempl* sCfgFindMigraTempl(const String& name, int immigrate);

// Sets every field of the template named templ->Name from the keys of
// `block`: the columns "target: source; ..." of the name's own key (a field
// without a target is skipped), each parameter of its "|..." key (texts as
// written), the main key pairs marking the column of the same target or
// added with Key 1, the deviation columns split at ";" (empty fields kept).
MAPCFG_EXPORT void sCfgReadMigraTempl(CCfgScript& script, const String& block, _MigraTempl* templ);
// Appends a template per key of `block` that holds no "|" (GBK pairs are
// skipped over) and is not empty, in key order.
MAPCFG_EXPORT void sCfgReadMigraTempls(CCfgScript& script, const String& block, RecordArray<_MigraTempl>& templs);
// The whole table: both blocks, appended.
MAPCFG_EXPORT void sCfgReadDataMigrate(CCfgScript& script);
// Long count + each export template, then the same for the imports. Returns
// the archive's error text ("" on success).
MAPCFG_EXPORT String sCfgWriteDataMigrate(CFFArchive& archive);
// Reads what sCfgWriteDataMigrate wrote, appending; stops at the first
// failure and returns the archive's error text. An archive older than
// kShapeTemplsVersion1 holds none of it: nothing is read and "" returned.
MAPCFG_EXPORT String sCfgReadDataMigrate(CFFArchive& archive, uint32_t version);
// Frees both tables' templates.
MAPCFG_EXPORT void sCfgClearDataMigrate();
// Deep copies (destination first): the items are copied, not shared.
MAPCFG_EXPORT void sCfgCopyMigraTempl(_MigraTempl* dst, const _MigraTempl* src);
MAPCFG_EXPORT void sCfgCopyMigraItem(_MigraItem* dst, const _MigraItem* src);

// --- Statistics map templates -----------------------------------------------------
// Statistics maps (charts of production and other per-well statistics) are
// made from templates kept in binary template files ("*.ctp"), not in
// scripts. A template owns its selection conditions, a tree of statistic
// items and a legend; copies and clones are deep (they share no record with
// their source). The layouts are in doc/records.md.

// One selection condition. Archive: String text1, Byte code, String text2,
// String text3, StringArray values, String text4, Double dbl1, dbl2, Long
// int1, int2, int3.
struct _CfgStatWhere {
  String text1;
  uint8_t code = 0;
  String text2;
  String text3;
  StringArray values;  // the condition's values
  String text4;
  double dbl1 = 0.0, dbl2 = 0.0;
  int32_t int1 = 0, int2 = 0, int3 = 0;
};

// One statistic item, owning its child items. Archive: String name, Byte
// type, five Doubles, Byte bytes[0], Byte bytes[1] (files older than
// 0x03001430 lack it: read as 2), Byte bytes[2], IntArray ints, Byte flag,
// Byte byte2, Double dbl, Long count and the children, String text1,
// StringArray texts, String text2, String text3, Long count and per
// sub-item Long, String, String, String, Double, Byte.
struct _CfgStatMeta {
  String name;
  uint8_t type = 0;
  double dbls[5] = {};     // a value range and an angle range; new: 0, 100, 100, 0, 360
  uint8_t bytes[3] = {};   // new: 0, 2, 128
  std::vector<int32_t> ints;
  uint8_t flag = 0;        // new: the owning template's flag
  uint8_t byte2 = 0;
  double dbl = 0.0;        // new: the owning template's flagDbl
  RecordArray<_CfgStatMeta> children;
  String text1;
  StringArray texts;
  String text2;
  String text3;
  // One entry of each per sub-item.
  std::vector<int32_t> subInts;
  StringArray subTexts1, subTexts2, subTexts3;
  std::vector<double> subDbls;
  std::vector<uint8_t> subBytes;
};

// One statistics template. Archive: String name, text1, text2, Double dbl1,
// the two lines and two fonts, Long count and the conditions, Byte flag,
// Double flagDbl, Long count and the items, Long count and per legend entry
// String, PattProp, Byte, String; Double dbl2.
struct _CfgStatTempl {
  String name;
  String text1;
  String text2;
  double dbl1 = 0.0;
  LINE_PROP lines[2] = {};
  FONT_PROP fonts[2] = {};
  RecordArray<_CfgStatWhere> wheres;
  uint8_t flag = 0;       // copied into every new item
  double flagDbl = 0.0;   // copied into every new item
  RecordArray<_CfgStatMeta> metas;
  // The legend, one entry of each per row; legendTexts1 also names the
  // sub-items of new items.
  StringArray legendTexts1;
  RecordArray<PATT_PROP> legendPatts;
  std::vector<uint8_t> legendBytes;
  StringArray legendTexts2;
  double dbl2 = 0.0;
};

// The store's templates, as sCfgReadMapStat appends them. Owned by the store.
MAPCFG_EXPORT RecordArray<_CfgStatTempl>* sCfgGetMapStatPtr();

// A new template named `name` with dbl1 = `value`, lines and fonts from
// sInitLineProp and sInitFontProp, everything else empty or 0. The caller
// owns it.
MAPCFG_EXPORT std::unique_ptr<_CfgStatTempl> sCfgTemplNew(const char* name, double value);
// Makes `dst` a deep copy of `src`: what dst owned is freed first, and every
// condition, item and legend fill is duplicated. `flag` is not used. Nothing
// happens when either is null or both are the same record.
MAPCFG_EXPORT void sCfgTemplCopy(_CfgStatTempl* dst, const _CfgStatTempl* src, int flag);
// A new deep copy of `src` (null for null), owned by the caller.
MAPCFG_EXPORT std::unique_ptr<_CfgStatTempl> sCfgTemplClone(const _CfgStatTempl* src);
// Frees the conditions, items and legend fills and empties every array; the
// texts and numbers stay.
MAPCFG_EXPORT void sCfgTemplClear(_CfgStatTempl* templ);
// Clears and frees `templ`, which no unique_ptr may own any more.
MAPCFG_EXPORT void sCfgTemplDelete(_CfgStatTempl* templ);

// A new item named `name` of type `type` with the defaults above; flag and
// dbl come from `owner` (0 when null). When the low two bits of `type` are
// not both 0, it has one sub-item per entry of the owner's legendTexts1:
// that text, "0", "1", 1.0 and 4 (its integer 0). The caller owns it.
MAPCFG_EXPORT std::unique_ptr<_CfgStatMeta> sCfgMetaNew(const char* name, char type, const _CfgStatTempl* owner);
// As sCfgTemplCopy, for items: the children are cloned.
MAPCFG_EXPORT void sCfgMetaCopy(_CfgStatMeta* dst, const _CfgStatMeta* src, int flag);
MAPCFG_EXPORT std::unique_ptr<_CfgStatMeta> sCfgMetaClone(const _CfgStatMeta* src);
// Frees the children and empties every array and text; the numbers stay.
MAPCFG_EXPORT void sCfgMetaClear(_CfgStatMeta* meta);
MAPCFG_EXPORT void sCfgMetaDelete(_CfgStatMeta* meta);

// The template file: String "Statis", Long file version (0x03012082), Long
// count, then each template. The reader checks the "Statis" text unless
// `noHeader` is non-zero (its caller read it), takes the file's version in
// place of `version`, and appends each template read whole to the store's
// templates; a count below 1 reads nothing more. Both return "" on success,
// "统计图格式不对" (GBK) for another first text, else the archive's error
// text at the first failure (the templates read before stay; the failed one
// is dropped). `path` names the file for the caller: the archive is neither
// loaded nor saved here.
MAPCFG_EXPORT String sCfgReadMapStat(const char* path, CFFArchive& archive, uint32_t version, int noHeader);
MAPCFG_EXPORT String sCfgWriteMapStat(CFFArchive& archive, const char* path);
// One record each: "" or the archive's error text. The readers take the
// archive version (items older than 0x03001430 lack bytes[1]); item trees
// deeper than 256 levels stop with error 539. `text` is not used.
MAPCFG_EXPORT String sCfgReadMapStat_Templ(CFFArchive& archive, _CfgStatTempl* templ, uint32_t version);
MAPCFG_EXPORT String sCfgWriteMapStat_Templ(CFFArchive& archive, const _CfgStatTempl* templ,
                                            const char* text = nullptr);
MAPCFG_EXPORT String sCfgReadMapStat_Meta(CFFArchive& archive, _CfgStatMeta* meta, uint32_t version);
MAPCFG_EXPORT String sCfgWriteMapStat_Meta(CFFArchive& archive, const _CfgStatMeta* meta);
MAPCFG_EXPORT String sCfgReadMapStat_Where(CFFArchive& archive, _CfgStatWhere* where, uint32_t version);
MAPCFG_EXPORT String sCfgWriteMapStat_Where(CFFArchive& archive, const _CfgStatWhere* where);
// Clears and frees every template of the store, first to last, and frees
// the array.
MAPCFG_EXPORT void sCfgClearMapStat();

// The statistics registry: template names and the registry's own copies of
// templates and items. A registry template or item is a template or item
// with the same fields and the same archive layout as in the template file
// (current version), so every function above takes it too; a member is one
// text (String).
struct _StatTempl : _CfgStatTempl {};
struct _StatMeta : _CfgStatMeta {};
struct _StatMember {
  String text;
};
struct _CfgMapStatis {
  StringArray Names;
  RecordArray<_StatTempl> Templs;
};

// Appends a StringArray to Names, then a template array (GetStatTemplArray)
// to Templs; "" or the archive's error text at the first failure.
MAPCFG_EXPORT String sCfgReadMapStatis(CFFArchive& archive, _CfgMapStatis& statis);
// Empties both lists and frees the templates.
MAPCFG_EXPORT void sCfgClearMapStatis(_CfgMapStatis& statis);

}  // namespace mapcfg

#endif  // MAPCFG_MAPS_H_
