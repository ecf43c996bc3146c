// The archive layouts of the statistics templates, for the template file,
// its record functions and the registry records.
#ifndef MAPCFG_MAPS_STAT_FIELDS_H_
#define MAPCFG_MAPS_STAT_FIELDS_H_

#include <cstdint>

#include "archive/record_io.h"
#include "catalogs/attribute_fields.h"
#include "mapcfg/maps.h"

namespace mapcfg {

// Template files older than this hold no bytes[1] in their items.
constexpr uint32_t kVersionStatMetaByte = 0x03001430;
// The version every template file is written with.
constexpr uint32_t kStatFileVersion = 0x03012082;

template <class V>
void Fields(V& v, _CfgStatWhere& r) {
  v("text1", r.text1);
  v("code", r.code);
  v("text2", r.text2);
  v("text3", r.text3);
  v("values", r.values);
  v("text4", r.text4);
  v("dbl1", r.dbl1);
  v("dbl2", r.dbl2);
  v("int1", r.int1);
  v("int2", r.int2);
  v("int3", r.int3);
}

template <class V>
void Fields(V& v, _CfgStatMeta& r) {
  // An item lies one level below the item whose child array holds it.
  if (!v.EnterNested()) return;
  v("name", r.name);
  v("type", r.type);
  v("dbls", r.dbls);
  v("bytes[0]", r.bytes[0]);
  bool present = true;
  if constexpr (V::kReads) present = v.version() >= kVersionStatMetaByte;
  if (present) {
    v("bytes[1]", r.bytes[1]);
  } else if (v.ok()) {
    r.bytes[1] = 2;  // what older files meant
  }
  v("bytes[2]", r.bytes[2]);
  v("ints", r.ints);
  v("flag", r.flag);
  v("byte2", r.byte2);
  v("dbl", r.dbl);
  v("children", r.children);
  v("text1", r.text1);
  v("texts", r.texts);
  v("text2", r.text2);
  v("text3", r.text3);
  v.Columns("subItems", r.subInts, r.subTexts1, r.subTexts2, r.subTexts3, r.subDbls, r.subBytes);
  v.LeaveNested();
}

template <class V>
void Fields(V& v, _CfgStatTempl& r) {
  v("name", r.name);
  v("text1", r.text1);
  v("text2", r.text2);
  v("dbl1", r.dbl1);
  v("lines", r.lines);
  v("fonts", r.fonts);
  v("wheres", r.wheres);
  v("flag", r.flag);
  v("flagDbl", r.flagDbl);
  v("metas", r.metas);
  v.Columns("legend", r.legendTexts1, r.legendPatts, r.legendBytes, r.legendTexts2);
  v("dbl2", r.dbl2);
}

// The registry's records: the same layouts.
template <class V>
void Fields(V& v, _StatTempl& r) {
  Fields(v, static_cast<_CfgStatTempl&>(r));
}

template <class V>
void Fields(V& v, _StatMeta& r) {
  Fields(v, static_cast<_CfgStatMeta&>(r));
}

template <class V>
void Fields(V& v, _StatMember& r) {
  v("text", r.text);
}

}  // namespace mapcfg

#endif  // MAPCFG_MAPS_STAT_FIELDS_H_
