// Statistics templates: making, copying and freeing them, the store's list
// of templates, and the template file.
#include <algorithm>
#include <memory>
#include <utility>

#include "archive/record_io.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "maps/stat_fields.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

// The first text of every template file.
constexpr char kStatMagic[] = "Statis";
// "统计图格式不对" (the statistics map format is wrong), GBK.
constexpr char kWrongFormat[] = "\xCD\xB3\xBC\xC6\xCD\xBC\xB8\xF1\xCA\xBD\xB2\xBB\xB6\xD4";

struct StatTable {
  RecordArray<_CfgStatTempl> templs;
};

template <class R, class Clone>
void CloneAll(RecordArray<R>& dst, const RecordArray<R>& src, Clone clone) {
  dst.clear();
  for (const std::unique_ptr<R>& r : src)
    if (r) dst.push_back(clone(*r));
}

// A new record made a copy of `src` by `copy`; null for null.
template <class R>
std::unique_ptr<R> CloneWith(const R* src, void (*copy)(R*, const R*, int)) {
  if (!src) return nullptr;
  auto record = std::make_unique<R>();
  copy(record.get(), src, 0);
  return record;
}

template <class R>
void DeleteWith(R* record, void (*clear)(R*)) {
  clear(record);
  delete record;
}

template <class R>
String ReadOne(CFFArchive& a, R* record, uint32_t version) {
  if (record) detail::GetRecord(a, *record, version);
  return a.GetLastError();
}

template <class R>
String WriteOne(CFFArchive& a, const R* record) {
  if (record) detail::PutRecord(a, *record);
  return a.GetLastError();
}

// The templates of a file after its version: the count, then each template
// appended to the store once read whole.
struct TemplateList {};

template <class V>
void Fields(V& v, TemplateList&) {
  v("templates", *sCfgGetMapStatPtr());
}

}  // namespace

RecordArray<_CfgStatTempl>* sCfgGetMapStatPtr() { return &detail::StoreTable<StatTable>().templs; }

std::unique_ptr<_CfgStatTempl> sCfgTemplNew(const char* name, double value) {
  auto templ = std::make_unique<_CfgStatTempl>();
  templ->name = name ? name : "";
  templ->dbl1 = value;
  for (LINE_PROP& line : templ->lines) sInitLineProp(&line);
  for (FONT_PROP& font : templ->fonts) sInitFontProp(&font);
  return templ;
}

void sCfgTemplCopy(_CfgStatTempl* dst, const _CfgStatTempl* src, int) {
  if (!dst || !src || dst == src) return;
  sCfgTemplClear(dst);
  dst->name = src->name;
  dst->text1 = src->text1;
  dst->text2 = src->text2;
  dst->dbl1 = src->dbl1;
  for (int i = 0; i < 2; ++i) {
    sCopyLineProp(&dst->lines[i], &src->lines[i]);
    sCopyFontProp(&dst->fonts[i], &src->fonts[i]);
  }
  CloneAll(dst->wheres, src->wheres, [](const _CfgStatWhere& w) { return std::make_unique<_CfgStatWhere>(w); });
  dst->flag = src->flag;
  dst->flagDbl = src->flagDbl;
  CloneAll(dst->metas, src->metas, [](const _CfgStatMeta& m) { return sCfgMetaClone(&m); });
  dst->legendTexts1 = src->legendTexts1;
  // A fill the host left null stays a row of its own, as a blank fill.
  for (const std::unique_ptr<PATT_PROP>& p : src->legendPatts)
    dst->legendPatts.push_back(std::make_unique<PATT_PROP>(p ? *p : PATT_PROP{}));
  dst->legendBytes = src->legendBytes;
  dst->legendTexts2 = src->legendTexts2;
  dst->dbl2 = src->dbl2;
}

std::unique_ptr<_CfgStatTempl> sCfgTemplClone(const _CfgStatTempl* src) { return CloneWith(src, sCfgTemplCopy); }

void sCfgTemplClear(_CfgStatTempl* templ) {
  if (!templ) return;
  for (std::unique_ptr<_CfgStatMeta>& meta : templ->metas) sCfgMetaDelete(meta.release());
  templ->metas.clear();
  templ->wheres.clear();
  templ->legendTexts1.clear();
  templ->legendPatts.clear();
  templ->legendBytes.clear();
  templ->legendTexts2.clear();
}

void sCfgTemplDelete(_CfgStatTempl* templ) { DeleteWith(templ, sCfgTemplClear); }

std::unique_ptr<_CfgStatMeta> sCfgMetaNew(const char* name, char type, const _CfgStatTempl* owner) {
  auto meta = std::make_unique<_CfgStatMeta>();
  meta->name = name ? name : "";
  meta->type = static_cast<uint8_t>(type);
  const double dbls[5] = {0.0, 100.0, 100.0, 0.0, 360.0};
  std::copy(dbls, dbls + 5, meta->dbls);
  meta->bytes[1] = 2;
  meta->bytes[2] = 128;
  if (!owner) return meta;
  meta->flag = owner->flag;
  meta->dbl = owner->flagDbl;
  if ((meta->type & 3) == 0) return meta;
  for (const String& text : owner->legendTexts1) {
    meta->subInts.push_back(0);
    meta->subTexts1.push_back(text);
    meta->subTexts2.push_back("0");
    meta->subTexts3.push_back("1");
    meta->subDbls.push_back(1.0);
    meta->subBytes.push_back(4);
  }
  return meta;
}

void sCfgMetaCopy(_CfgStatMeta* dst, const _CfgStatMeta* src, int) {
  if (!dst || !src || dst == src) return;
  sCfgMetaClear(dst);
  dst->name = src->name;
  dst->type = src->type;
  std::copy(src->dbls, src->dbls + 5, dst->dbls);
  std::copy(src->bytes, src->bytes + 3, dst->bytes);
  dst->ints = src->ints;
  dst->flag = src->flag;
  dst->byte2 = src->byte2;
  dst->dbl = src->dbl;
  CloneAll(dst->children, src->children, [](const _CfgStatMeta& m) { return sCfgMetaClone(&m); });
  dst->text1 = src->text1;
  dst->texts = src->texts;
  dst->text2 = src->text2;
  dst->text3 = src->text3;
  dst->subInts = src->subInts;
  dst->subTexts1 = src->subTexts1;
  dst->subTexts2 = src->subTexts2;
  dst->subTexts3 = src->subTexts3;
  dst->subDbls = src->subDbls;
  dst->subBytes = src->subBytes;
}

std::unique_ptr<_CfgStatMeta> sCfgMetaClone(const _CfgStatMeta* src) { return CloneWith(src, sCfgMetaCopy); }

void sCfgMetaClear(_CfgStatMeta* meta) {
  if (!meta) return;
  for (std::unique_ptr<_CfgStatMeta>& child : meta->children) sCfgMetaDelete(child.release());
  meta->children.clear();
  meta->name.clear();
  meta->ints.clear();
  meta->text1.clear();
  meta->texts.clear();
  meta->text2.clear();
  meta->text3.clear();
  meta->subInts.clear();
  meta->subTexts1.clear();
  meta->subTexts2.clear();
  meta->subTexts3.clear();
  meta->subDbls.clear();
  meta->subBytes.clear();
}

void sCfgMetaDelete(_CfgStatMeta* meta) { DeleteWith(meta, sCfgMetaClear); }

String sCfgReadMapStat(const char*, CFFArchive& a, uint32_t version, int noHeader) {
  if (!noHeader && a.GetString() != kStatMagic) return kWrongFormat;
  version = static_cast<uint32_t>(a.GetLong());
  if (!a.GetLastError().empty()) return a.GetLastError();
  TemplateList list;
  detail::GetRecord(a, list, version);
  return a.GetLastError();
}

String sCfgWriteMapStat(CFFArchive& a, const char*) {
  a.PutString(kStatMagic);
  a.PutLong(static_cast<int32_t>(kStatFileVersion));
  TemplateList list;
  detail::PutRecord(a, list);
  return a.GetLastError();
}

String sCfgReadMapStat_Templ(CFFArchive& a, _CfgStatTempl* templ, uint32_t version) {
  return ReadOne(a, templ, version);
}
String sCfgWriteMapStat_Templ(CFFArchive& a, const _CfgStatTempl* templ, const char*) { return WriteOne(a, templ); }
String sCfgReadMapStat_Meta(CFFArchive& a, _CfgStatMeta* meta, uint32_t version) { return ReadOne(a, meta, version); }
String sCfgWriteMapStat_Meta(CFFArchive& a, const _CfgStatMeta* meta) { return WriteOne(a, meta); }
String sCfgReadMapStat_Where(CFFArchive& a, _CfgStatWhere* where, uint32_t version) {
  return ReadOne(a, where, version);
}
String sCfgWriteMapStat_Where(CFFArchive& a, const _CfgStatWhere* where) { return WriteOne(a, where); }

void sCfgClearMapStat() {
  RecordArray<_CfgStatTempl>& templs = *sCfgGetMapStatPtr();
  for (std::unique_ptr<_CfgStatTempl>& templ : templs) sCfgTemplDelete(templ.release());
  RecordArray<_CfgStatTempl>().swap(templs);
}

FieldTexts sDescribe(const _CfgStatWhere& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _CfgStatMeta& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _CfgStatTempl& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
