// Well-status, interpretation and lithology catalogues: codes ascending
// without case beside the records they own.
#include <memory>

#include "catalogs/catalog_fields.h"
#include "catalogs/catalog_tables.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "store/script_fields.h"
#include "store/store_state.h"

namespace mapcfg {

namespace {

template <class R>
struct RecordCatalog {
  StringArray codes;
  RecordArray<R> props;
};

template <class R>
RecordCatalog<R>& Catalog() {
  return detail::StoreTable<RecordCatalog<R>>();
}

// Value "name; color; displayNo; color2".
std::unique_ptr<_StatusProp> ParseStatus(const String& value) {
  auto r = std::make_unique<_StatusProp>();
  detail::ValueFields f(value);
  r->name = f.Text(';');
  r->color = f.Hex(';');
  r->displayNo = f.Int(';');
  r->color2 = f.Hex(';');
  return r;
}

// Value "type: density; symbolName; patternBG; patternName; displayNo;
// standardName; patternColor".
std::unique_ptr<_IntepretProp> ParseInterpret(const String& value) {
  auto r = std::make_unique<_IntepretProp>();
  detail::ValueFields f(value);
  r->type = f.Text(':');
  r->density = f.Int(';');
  r->symbolName = f.Text(';');
  r->patternBG = f.Hex(';');
  r->patternName = f.Text(';');
  r->displayNo = f.Int(';');
  r->standardName = f.Text(';');
  r->patternColor = f.Hex(';');
  return r;
}

// Value "name: ratio; symbolName; patternName; color; displayNo".
std::unique_ptr<_LithProp> ParseLith(const String& value) {
  auto r = std::make_unique<_LithProp>();
  detail::ValueFields f(value);
  r->name = f.Text(':');
  r->ratio = f.Double(';');
  r->symbolName = f.Text(';');
  r->patternName = f.Text(';');
  r->color = f.Hex(';');
  r->displayNo = f.Int(';');
  return r;
}

template <class R>
void ReadCatalog(const CCfgScript& script, cfg::Str block, std::unique_ptr<R> (*parse)(const String&)) {
  RecordCatalog<R>& t = Catalog<R>();
  detail::ReadSortedBlock(script, block, t.codes, t.props, parse);
}

// The record of `code`; else, unless `exact`, the record of the default code
// of the current language.
template <class R>
R* FindRecord(const String& code, int exact) {
  RecordCatalog<R>& t = Catalog<R>();
  std::unique_ptr<R>* found = detail::FindByKey(t.codes, t.props, code);
  if (!found && !exact) found = detail::FindByKey(t.codes, t.props, cfg::Name(cfg::kDefault));
  return found ? found->get() : nullptr;
}

template <class R>
void CopyRecord(R* dst, const R* src) {
  if (dst && src) *dst = *src;
}

}  // namespace

StringArray* sCfgGetStatusCodesPtr() { return &Catalog<_StatusProp>().codes; }
RecordArray<_StatusProp>* sCfgGetStatusPropsPtr() { return &Catalog<_StatusProp>().props; }
StringArray* sCfgGetInterpretCodesPtr() { return &Catalog<_IntepretProp>().codes; }
RecordArray<_IntepretProp>* sCfgGetInterpretPropsPtr() { return &Catalog<_IntepretProp>().props; }
StringArray* sCfgGetLithCodesPtr() { return &Catalog<_LithProp>().codes; }
RecordArray<_LithProp>* sCfgGetLithPropsPtr() { return &Catalog<_LithProp>().props; }

void sCfgReadStatusProps(CCfgScript& script) { ReadCatalog(script, cfg::kClassificationCorrelation, ParseStatus); }
void sCfgReadInterpretProps(CCfgScript& script) {
  ReadCatalog(script, cfg::kInterpretationCorrelation, ParseInterpret);
}
void sCfgReadLithProps(CCfgScript& script) { ReadCatalog(script, cfg::kLithologyCorrelation, ParseLith); }

_StatusProp* sCfgFindStatusProp(const String& code, int exact) { return FindRecord<_StatusProp>(code, exact); }
_IntepretProp* sCfgFindInterpretProp(const String& code, int exact) { return FindRecord<_IntepretProp>(code, exact); }
_LithProp* sCfgFindLithProp(const String& code, int exact) { return FindRecord<_LithProp>(code, exact); }

void sCfgCopyStatusProp(_StatusProp* dst, const _StatusProp* src) { CopyRecord(dst, src); }
void sCfgCopyInterpretProp(_IntepretProp* dst, const _IntepretProp* src) { CopyRecord(dst, src); }
void sCfgCopyLithProp(_LithProp* dst, const _LithProp* src) { CopyRecord(dst, src); }

void sCfgGetResultPropByCode(const String& code, String& type, char& density, String& symbolName, uint32_t& patternBG,
                             String& patternName, uint32_t& patternColor) {
  const _IntepretProp* r = sCfgFindInterpretProp(code, 1);
  const _IntepretProp unknown{"", 0, "", 0xFFFFFF, "", 0, "", 0};
  if (!r) r = &unknown;
  type = r->type;
  density = static_cast<char>(r->density);
  symbolName = r->symbolName;
  patternBG = r->patternBG;
  patternName = r->patternName;
  patternColor = r->patternColor;
}

int CFFArchive::PutStatusProp(const _StatusProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetStatusProp(_StatusProp* prop) {
  return prop ? detail::GetRecord(*this, *prop, detail::kCurrentVersion) : 0;
}
int CFFArchive::PutInterpretProp(const _IntepretProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetInterpretProp(_IntepretProp* prop) {
  return prop ? detail::GetRecord(*this, *prop, detail::kCurrentVersion) : 0;
}
int CFFArchive::PutLithProp(const _LithProp* prop) { return prop ? detail::PutRecord(*this, *prop) : 0; }
int CFFArchive::GetLithProp(_LithProp* prop) {
  return prop ? detail::GetRecord(*this, *prop, detail::kCurrentVersion) : 0;
}

int CFFArchive::PutStatusPropArray(const RecordArray<_StatusProp>& first, const RecordArray<_StatusProp>* second,
                                   const RecordArray<_StatusProp>* third) {
  return detail::PutRecordArrays(*this, first, second, third);
}
int CFFArchive::GetStatusPropArray(RecordArray<_StatusProp>& first, RecordArray<_StatusProp>* second,
                                   RecordArray<_StatusProp>* third) {
  return detail::GetRecordArrays(*this, detail::kCurrentVersion, first, second, third);
}
int CFFArchive::PutInterpretPropArray(const RecordArray<_IntepretProp>& first, const RecordArray<_IntepretProp>* second,
                                      const RecordArray<_IntepretProp>* third) {
  return detail::PutRecordArrays(*this, first, second, third);
}
int CFFArchive::GetInterpretPropArray(RecordArray<_IntepretProp>& first, RecordArray<_IntepretProp>* second,
                                      RecordArray<_IntepretProp>* third) {
  return detail::GetRecordArrays(*this, detail::kCurrentVersion, first, second, third);
}
int CFFArchive::PutLithPropArray(const RecordArray<_LithProp>& first, const RecordArray<_LithProp>* second,
                                 const RecordArray<_LithProp>* third) {
  return detail::PutRecordArrays(*this, first, second, third);
}
int CFFArchive::GetLithPropArray(RecordArray<_LithProp>& first, RecordArray<_LithProp>* second,
                                 RecordArray<_LithProp>* third) {
  return detail::GetRecordArrays(*this, detail::kCurrentVersion, first, second, third);
}

FieldTexts sDescribe(const _StatusProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _IntepretProp& record) { return detail::DescribeRecord(record); }
FieldTexts sDescribe(const _LithProp& record) { return detail::DescribeRecord(record); }

}  // namespace mapcfg
