// Records as named field texts, for tools that show, compare and review
// configurations (the mapcfg tool's show and diff are built on it).
//
// The names follow the record's fields in archive order: "color",
// "texts1[2]", nested records as "FmtTLine.width". The texts are exact:
// integers in decimal, colours and other unsigned 32-bit words in hexadecimal
// ("0x00FF00"), floats and doubles in the shortest form that reads back to
// the same number, names as their 8-bit bytes (GBK in Chinese
// configurations).
#ifndef MAPCFG_DESCRIBE_H_
#define MAPCFG_DESCRIBE_H_

#include <vector>

#include "mapcfg/catalogs.h"
#include "mapcfg/export.h"
#include "mapcfg/maps.h"
#include "mapcfg/store.h"
#include "mapcfg/types.h"

namespace mapcfg {

// The fields of a record, in archive order. The caller owns the result.
MAPCFG_EXPORT FieldTexts sDescribe(const LINE_PROP& record);
MAPCFG_EXPORT FieldTexts sDescribe(const PATT_PROP& record);
MAPCFG_EXPORT FieldTexts sDescribe(const FONT_PROP& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _StatusProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _IntepretProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _LithProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _TextFmt& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _SysCfgParam& record);
// Section map records.
MAPCFG_EXPORT FieldTexts sDescribe(const _PMTAutoParm& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _PMTMapProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _PMTBodyProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _PMTLableProp& record);
// Map records.
MAPCFG_EXPORT FieldTexts sDescribe(const _LayersProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _HVSpaceProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _MapFrameProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _LegendProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _LegendMetaProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _ScaleProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _CurveParm& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _OldProdProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _OldTestProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _JWTAutoParm& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _JWTMapProp& record);
// Plane-shape and migration templates.
MAPCFG_EXPORT FieldTexts sDescribe(const _PlaneShapeTempl& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _NoDiviType& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _MigraTempl& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _MigraItem& record);
// The plane-shape table in the order of its stream (sCfgWritePlaneShapes):
// "upPinchOut.Name" ... "noDiviTypes[0].Name".
MAPCFG_EXPORT FieldTexts sDescribePlaneShapes();
// The migration tables in the order of their stream (sCfgWriteDataMigrate):
// "migrate[0].Name" ... "immigrate[0].Items[1].Source".
MAPCFG_EXPORT FieldTexts sDescribeDataMigrate();
// Statistics templates: every field, children and legend included
// ("metas[0].children[1].name", "legend.2[0].name").
MAPCFG_EXPORT FieldTexts sDescribe(const _CfgStatWhere& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _CfgStatMeta& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _CfgStatTempl& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _StatMember& record);
// Single-well chart records (a track's curves and children are not listed).
MAPCFG_EXPORT FieldTexts sDescribe(const _DJTMapProp& record);
MAPCFG_EXPORT FieldTexts sDescribe(const _DJTTrackProp& record);
// Every table of the whole-store stream (sCfgWriteMain), in stream order:
// "statusCodes[0]", "statusProps[0].name", "colors[3]" ...
MAPCFG_EXPORT FieldTexts sDescribeMainStore();
// Every record of a map kind (named in the current language), in the order
// of its stream (sCfgWriteMapReserv ...): "frame.MapName", "curves[0].Code"
// ...; empty for an unknown name.
MAPCFG_EXPORT FieldTexts sDescribeMapKind(const String& kind);
// The configuration strings (rows of sGetCfgStr) of every key that the
// readers of a map kind (named in the current language) look up in its
// block; any other key of the block is ignored. Empty for an unknown name.
MAPCFG_EXPORT std::vector<int> sDescribeMapKindKeys(const String& kind);

}  // namespace mapcfg

#endif  // MAPCFG_DESCRIBE_H_
