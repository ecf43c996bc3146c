// The archive layouts of the plane-shape and migration templates, for their
// archive members and the store's streams of them.
//
// These layouts are kept in configuration archives. A change to one adds a
// version constant after kShapeTemplsVersion1 and guards the new fields with
// `if (v.version() >= kShapeTempls...)` so that older archives still read.
#ifndef MAPCFG_MAPS_TEMPLATE_FIELDS_H_
#define MAPCFG_MAPS_TEMPLATE_FIELDS_H_

#include "archive/record_io.h"
#include "catalogs/attribute_fields.h"
#include "mapcfg/maps.h"

namespace mapcfg {

template <class V>
void Fields(V& v, _PlaneShapeTempl& r) {
  v("Name", r.Name);
  v("DivisionLength", r.DivisionLength);
  v("DiviInterval", r.DiviInterval);
  v("MinTipNumber", r.MinTipNumber);
  v("MaxTipNumber", r.MaxTipNumber);
  v("TipShape", r.TipShape);
  v("TipHeight", r.TipHeight);
  v("Line", r.Line);
  v("TipPatt", r.TipPatt);
}

template <class V>
void Fields(V& v, _NoDiviType& r) {
  v("Name", r.Name);
  v("Width", r.Width);
  v("Patt", r.Patt);
}

template <class V>
void Fields(V& v, _MigraItem& r) {
  v("Target", r.Target);
  v("Source", r.Source);
  v("Key", r.Key);
}

template <class V>
void Fields(V& v, _MigraTempl& r) {
  v("Name", r.Name);
  v("SourceSQL", r.SourceSQL);
  v("TargetSQL", r.TargetSQL);
  v("Params", r.Params);
  v("WellTarget", r.WellTarget);
  v("WellSource", r.WellSource);
  v("DipColumns", r.DipColumns);
  v("Items", r.Items);
}

namespace detail {

// A whole table's stream: written, or read from an archive of `version`
// (which holds none of it before kShapeTemplsVersion1); the archive's error
// text, "" on success.
template <class Stream>
String WriteTemplStream(CFFArchive& archive) {
  PutRecord(archive, Stream{});
  return archive.GetLastError();
}
template <class Stream>
String ReadTemplStream(CFFArchive& archive, uint32_t version) {
  if (version < kShapeTemplsVersion1) return String();  // written before the tables existed
  Stream stream;
  GetRecord(archive, stream, version);
  return archive.GetLastError();
}

}  // namespace detail
}  // namespace mapcfg

#endif  // MAPCFG_MAPS_TEMPLATE_FIELDS_H_
