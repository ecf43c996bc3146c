// The whole store as one archive stream (sCfgWriteMain, sCfgReadMain), and
// its description for tools.
//
// The stream is one field list over the store's tables, run by the record
// writer, reader and describer like any record. It lives with the catalogues
// because it holds them; the store below knows nothing of them.
#include <utility>

#include "archive/record_io.h"
#include "catalogs/catalog_fields.h"
#include "mapcfg/archive.h"
#include "mapcfg/catalogs.h"
#include "mapcfg/describe.h"
#include "mapcfg/store.h"
#include "store/system_param_fields.h"

namespace mapcfg {

namespace {

// The tables of the stream, reached through their getters.
struct MainStore {};

// The steps in stream order. A reader stops at the first failure: the steps
// before keep what they read.
template <class V>
void Fields(V& v, MainStore&) {
  v("sysCfgParam", *sCfgGetSysCfgParamPtr());
  v("libNames", *sCfgGetLibNamesPtr());
  v("libDlls", *sCfgGetLibDllsPtr());
  v("menuNames", *sCfgGetMenuNamesPtr());
  v("menuFuns", *sCfgGetMenuFunsPtr());
  v("statusCodes", *sCfgGetStatusCodesPtr());
  v("statusProps", *sCfgGetStatusPropsPtr());
  v("interpretCodes", *sCfgGetInterpretCodesPtr());
  v("interpretProps", *sCfgGetInterpretPropsPtr());
  v("lithCodes", *sCfgGetLithCodesPtr());
  v("lithProps", *sCfgGetLithPropsPtr());
  v("colorNames", *sCfgGetColorNamesPtr());
  v("colors", *sCfgGetColorsPtr());
  v("yqxsNames", *sCfgGetYQXSNamesPtr());
  v("yqxsPicts", *sCfgGetYQXSPictsPtr());
  v("hywNames", *sCfgGetHYWNamesPtr());
  v("hywPicts", *sCfgGetHYWPictsPtr());
  v("yxqzNames", *sCfgGetYXQZNamesPtr());
  v("yxqzPicts", *sCfgGetYXQZPictsPtr());
  v("gzfhNames", *sCfgGetGZFHNamesPtr());
  v("gzfhPicts", *sCfgGetGZFHPictsPtr());
  v.Block("prevColors", sCfgGetPrevColorPtr(), 16);
  v("textFmtNames", *sCfgGetTextFmtNamesPtr());
  v("textFmts", *sCfgGetTextFmtsPtr());
  v("dataSrcNames", *sCfgGetDataSrcNamesPtr());
  v("dataSrcVals", *sCfgGetDataSrcValsPtr());
  v("labelCrvCodes", *sCfgGetLabelCrvCodesPtr());
  v("labelCrvVals", *sCfgGetLabelCrvValsPtr());
}

}  // namespace

String sCfgWriteMain(CFFArchive& archive) {
  MainStore store;
  detail::PutRecord(archive, store);
  return archive.GetLastError();
}

String sCfgReadMain(CFFArchive& archive, uint32_t version) {
  MainStore store;
  detail::GetRecord(archive, store, version);
  return archive.GetLastError();
}

FieldTexts sDescribeMainStore() {
  MainStore store;
  return detail::DescribeRecord(store);
}

}  // namespace mapcfg
