// The statistics registry: template names with the registry's own copies
// of templates, items and members, in the layouts of the template file.
#include "archive/record_io.h"
#include "mapcfg/archive.h"
#include "mapcfg/describe.h"
#include "mapcfg/maps.h"
#include "maps/stat_fields.h"

namespace mapcfg {

namespace {

template <class R>
int Put(CFFArchive& a, const R* record) {
  return record ? detail::PutRecord(a, *record) : 0;
}

template <class R>
int Get(CFFArchive& a, R* record) {
  return record ? detail::GetRecord(a, *record, detail::kCurrentVersion) : 0;
}

template <class R>
int PutAll(CFFArchive& a, const RecordArray<R>& records) {
  return detail::PutRecordArrays<R>(a, records, nullptr, nullptr);
}

template <class R>
int GetAll(CFFArchive& a, RecordArray<R>& records) {
  return detail::GetRecordArrays<R>(a, detail::kCurrentVersion, records, nullptr, nullptr);
}

}  // namespace

int CFFArchive::PutStatTempl(const _StatTempl* templ) { return Put(*this, templ); }
int CFFArchive::GetStatTempl(_StatTempl* templ) { return Get(*this, templ); }
int CFFArchive::PutStatMetal(const _StatMeta* meta) { return Put(*this, meta); }
int CFFArchive::GetStatMetal(_StatMeta* meta) { return Get(*this, meta); }
int CFFArchive::PutStatMember(const _StatMember* member) { return Put(*this, member); }
int CFFArchive::GetStatMember(_StatMember* member) { return Get(*this, member); }

int CFFArchive::PutStatTemplArray(const RecordArray<_StatTempl>& templs) { return PutAll(*this, templs); }
int CFFArchive::GetStatTemplArray(RecordArray<_StatTempl>& templs) {
  return GetAll(*this, templs);
}
int CFFArchive::PutStatMetalArray(const RecordArray<_StatMeta>& metas) {
  return PutAll(*this, metas);
}
int CFFArchive::GetStatMetalArray(RecordArray<_StatMeta>& metas) {
  return GetAll(*this, metas);
}
int CFFArchive::PutStatMemberArray(const RecordArray<_StatMember>& members) {
  return PutAll(*this, members);
}
int CFFArchive::GetStatMemberArray(RecordArray<_StatMember>& members) {
  return GetAll(*this, members);
}

String sCfgReadMapStatis(CFFArchive& a, _CfgMapStatis& statis) {
  if (a.GetStringArray(statis.Names)) a.GetStatTemplArray(statis.Templs);
  return a.GetLastError();
}

void sCfgClearMapStatis(_CfgMapStatis& statis) {
  StringArray().swap(statis.Names);
  for (std::unique_ptr<_StatTempl>& templ : statis.Templs) sCfgTemplDelete(templ.release());
  RecordArray<_StatTempl>().swap(statis.Templs);
}

FieldTexts sDescribe(const _StatMember& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
