// Data migration: the templates that copy wells' data out of the suite's
// database (Data_Migrate) and into it (Data_Immigrate).
#include "base/text_bytes.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "maps/template_fields.h"
#include "store/script_fields.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

struct MigraTable {
  RecordArray<_MigraTempl> migrate;    // Data_Migrate: out of the database
  RecordArray<_MigraTempl> immigrate;  // Data_Immigrate: into it
};

MigraTable& Migra() { return detail::StoreTable<MigraTable>(); }

// Whether `key` holds a "|", the byte after a GBK lead byte not counted (it
// is half of a character there).
bool HasBar(const String& key) {
  for (size_t i = 0; i < key.size(); ++i) {
    if (detail::IsGbkLead(key[i])) {
      ++i;
    } else if (key[i] == '|') {
      return true;
    }
  }
  return false;
}

// The item of `target` (ASCII case ignored), or null.
_MigraItem* FindItem(_MigraTempl& t, const String& target) {
  for (const std::unique_ptr<_MigraItem>& item : t.Items)
    if (detail::EqualsNoCase(item->Target, target.c_str())) return item.get();
  return nullptr;
}

// Calls `pair(target, source)` for each field "target: source" of a list
// separated by ";", up to the end of the value; a field without a target is
// skipped.
template <class Pair>
void ForEachPair(const String& value, Pair pair) {
  int pos = -1;
  while (pos < static_cast<int>(value.size())) {
    const String field = sGetSubStr(value, ';', pos + 1, &pos);
    int colon = -1;
    const String target = sGetSubStr(field, ':', 0, &colon);
    if (!target.empty()) pair(target, sGetSubStr(field, ':', colon + 1));
  }
}

// Every field of a list separated by ";", empty ones included.
StringArray AllFields(const String& value) {
  StringArray fields;
  int pos = -1;
  while (pos < static_cast<int>(value.size())) fields.push_back(sGetSubStr(value, ';', pos + 1, &pos));
  return fields;
}

// The table's stream, in its archive order.
struct MigraStream {};

template <class V>
void Fields(V& v, MigraStream&) {
  v("migrate", Migra().migrate);
  v("immigrate", Migra().immigrate);
}

}  // namespace

RecordArray<_MigraTempl>* sCfgGetMigraTemplsPtr() { return &Migra().migrate; }
RecordArray<_MigraTempl>* sCfgGetImmigraTemplsPtr() { return &Migra().immigrate; }

_MigraTempl* sCfgFindMigraTempl(const String& name, int immigrate) {
  for (const std::unique_ptr<_MigraTempl>& t : immigrate ? Migra().immigrate : Migra().migrate)
    if (detail::EqualsNoCase(t->Name, name.c_str())) return t.get();
  return nullptr;
}

void sCfgReadMigraTempl(CCfgScript& script, const String& block, _MigraTempl* templ) {
  if (!templ) return;
  _MigraTempl& t = *templ;
  const auto param = [&](cfg::Str suffix) {
    return script.GetKeyVal(block.c_str(), (t.Name + cfg::Name(suffix)).c_str());
  };
  t.Items.clear();
  ForEachPair(script.GetKeyVal(block.c_str(), t.Name.c_str()), [&t](const String& target, const String& source) {
    auto item = std::make_unique<_MigraItem>();
    item->Target = target;
    item->Source = source;
    t.Items.push_back(std::move(item));
  });
  ForEachPair(param(cfg::kMainKeyParallelism), [&t](const String& target, const String& source) {
    _MigraItem* item = FindItem(t, target);
    if (!item) {
      t.Items.push_back(std::make_unique<_MigraItem>());
      item = t.Items.back().get();
      item->Target = target;
      item->Source = source;
    }
    item->Key = 1;
  });
  t.SourceSQL = param(cfg::kSourceSQLSentence);
  t.TargetSQL = param(cfg::kTargetSQLSentence);
  t.Params = sToDWord(param(cfg::kImmigrateParameter));
  const String wells = param(cfg::kWellCodeParallelism);
  detail::ValueFields f(wells);
  t.WellTarget = f.Text(';');
  t.WellSource = f.Text(';');
  const String dip = param(cfg::kDIPParameter);
  t.DipColumns = dip.empty() ? StringArray() : AllFields(dip);
}

void sCfgReadMigraTempls(CCfgScript& script, const String& block, RecordArray<_MigraTempl>& templs) {
  const int count = script.GetKeyCnt(block.c_str());
  for (int i = 0; i < count; ++i) {
    const String key = script.GetKeyName(block.c_str(), i);
    if (key.empty() || HasBar(key)) continue;
    auto templ = std::make_unique<_MigraTempl>();
    templ->Name = key;
    sCfgReadMigraTempl(script, block, templ.get());
    templs.push_back(std::move(templ));
  }
}

void sCfgReadDataMigrate(CCfgScript& script) {
  sCfgReadMigraTempls(script, cfg::Name(cfg::kDataMigrate), Migra().migrate);
  sCfgReadMigraTempls(script, cfg::Name(cfg::kDataImmigrate), Migra().immigrate);
}

String sCfgWriteDataMigrate(CFFArchive& archive) { return detail::WriteTemplStream<MigraStream>(archive); }
String sCfgReadDataMigrate(CFFArchive& archive, uint32_t version) {
  return detail::ReadTemplStream<MigraStream>(archive, version);
}

void sCfgClearDataMigrate() { Migra() = MigraTable(); }

void sCfgCopyMigraTempl(_MigraTempl* dst, const _MigraTempl* src) {
  if (!dst || !src || dst == src) return;
  RecordArray<_MigraItem> items;
  for (const std::unique_ptr<_MigraItem>& item : src->Items) items.push_back(std::make_unique<_MigraItem>(*item));
  dst->Name = src->Name;
  dst->SourceSQL = src->SourceSQL;
  dst->TargetSQL = src->TargetSQL;
  dst->Params = src->Params;
  dst->WellTarget = src->WellTarget;
  dst->WellSource = src->WellSource;
  dst->DipColumns = src->DipColumns;
  dst->Items = std::move(items);
}
void sCfgCopyMigraItem(_MigraItem* dst, const _MigraItem* src) {
  if (dst && src) *dst = *src;
}

int CFFArchive::PutMigraTempl(const _MigraTempl* templ) { return templ ? detail::PutRecord(*this, *templ) : 0; }
int CFFArchive::GetMigraTempl(_MigraTempl* templ, uint32_t version) {
  return templ ? detail::GetRecord(*this, *templ, version) : 0;
}
int CFFArchive::PutMigraItem(const _MigraItem* item) { return item ? detail::PutRecord(*this, *item) : 0; }
int CFFArchive::GetMigraItem(_MigraItem* item, uint32_t version) {
  return item ? detail::GetRecord(*this, *item, version) : 0;
}

FieldTexts sDescribe(const _MigraTempl& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _MigraItem& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribeDataMigrate() { return detail::DescribeRecord(MigraStream{}); }

}  // namespace mapcfg
