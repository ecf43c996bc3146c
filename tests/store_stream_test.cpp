// The whole store as one archive stream, and clearing the store.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "archive_test_util.h"
#include "store_test_util.h"
#include "test_util.h"

using namespace mapcfg;

namespace {

// Random values, the same on every platform (std::mt19937 is fully
// specified; the distributions of the standard library are not, so none is
// used).
class Random {
 public:
  explicit Random(uint32_t seed) : gen_(seed) {}
  uint32_t Below(uint32_t n) { return static_cast<uint32_t>(gen_() % n); }
  uint32_t Word() { return static_cast<uint32_t>(gen_()); }
  double Real() { return static_cast<int32_t>(Word()) / 1024.0; }
  // ASCII or GBK text (a GBK character is a lead byte 0x81..0xFE and a trail
  // byte 0x40..0xFE other than 0x7F), up to 12 characters.
  String Text() {
    String s;
    for (uint32_t n = Below(13); n > 0; --n) {
      if (Below(2)) {
        s += static_cast<char>(0x81 + Below(0x7E));
        const uint32_t trail = 0x40 + Below(0xBE);
        s += static_cast<char>(trail == 0x7F ? 0x80 : trail);
      } else {
        s += static_cast<char>(' ' + 1 + Below(94));
      }
    }
    return s;
  }
  StringArray Texts(size_t n) {
    StringArray v;
    while (n-- > 0) v.push_back(Text());
    return v;
  }

 private:
  std::mt19937 gen_;
};

// Fills every table of the stream with `n` random entries each (the codes
// and their records stay parallel).
void FillStore(Random& r, size_t n) {
  _SysCfgParam& sys = *sCfgGetSysCfgParamPtr();
  sys.datumHeight = r.Real();
  sys.depthSystem = static_cast<uint8_t>(r.Below(4));
  sys.coordSystem = static_cast<uint8_t>(r.Below(4));
  for (size_t i = 0; i < n % 3; ++i) {
    sys.depthTexts1.push_back(r.Text());
    sys.depthFactors.push_back(r.Real());
    sys.depthTexts2.push_back(r.Text());
  }
  sys.coordTexts1 = {r.Text()};
  sys.coordFactors = {r.Real()};
  sys.coordTexts2 = {r.Text()};
  for (StringArray* list : {sCfgGetLibNamesPtr(), sCfgGetLibDllsPtr(), sCfgGetMenuNamesPtr(), sCfgGetMenuFunsPtr()})
    *list = r.Texts(n);
  *sCfgGetStatusCodesPtr() = r.Texts(n);
  *sCfgGetInterpretCodesPtr() = r.Texts(n);
  *sCfgGetLithCodesPtr() = r.Texts(n);
  for (size_t i = 0; i < n; ++i) {
    sCfgGetStatusPropsPtr()->push_back(
        std::make_unique<_StatusProp>(_StatusProp{r.Text(), r.Word(), static_cast<int32_t>(r.Word()), r.Word()}));
    sCfgGetInterpretPropsPtr()->push_back(std::make_unique<_IntepretProp>(
        _IntepretProp{r.Text(), static_cast<int32_t>(r.Word()), r.Text(), r.Word(), r.Text(),
                      static_cast<int32_t>(r.Word()), r.Text(), r.Word()}));
    sCfgGetLithPropsPtr()->push_back(std::make_unique<_LithProp>(
        _LithProp{r.Text(), r.Real(), r.Text(), r.Text(), r.Word(), static_cast<int32_t>(r.Word())}));
    auto fmt = std::make_unique<_TextFmt>();
    for (String& t : fmt->texts1) t = r.Text();
    for (String& t : fmt->texts2) t = r.Text();
    fmt->num1 = static_cast<int32_t>(r.Word());
    fmt->num2 = static_cast<int32_t>(r.Word());
    fmt->char1 = static_cast<char>(r.Word());
    fmt->upper1 = r.Text();
    fmt->upper2 = r.Text();
    fmt->num3 = static_cast<int32_t>(r.Word());
    fmt->char2 = static_cast<char>(r.Word());
    fmt->text3 = r.Text();
    sCfgGetTextFmtsPtr()->push_back(std::move(fmt));
    sCfgGetColorsPtr()->push_back(r.Word());
  }
  *sCfgGetColorNamesPtr() = r.Texts(n);
  for (StringArray* list : {sCfgGetYQXSNamesPtr(), sCfgGetYQXSPictsPtr(), sCfgGetHYWNamesPtr(), sCfgGetHYWPictsPtr(),
                            sCfgGetYXQZNamesPtr(), sCfgGetYXQZPictsPtr(), sCfgGetGZFHNamesPtr(), sCfgGetGZFHPictsPtr(),
                            sCfgGetTextFmtNamesPtr(), sCfgGetDataSrcNamesPtr(), sCfgGetDataSrcValsPtr(),
                            sCfgGetLabelCrvCodesPtr(), sCfgGetLabelCrvValsPtr()})
    *list = r.Texts(n);
  for (int i = 0; i < 16; ++i) sCfgGetPrevColorPtr()[i] = r.Word();
}

using mapcfg_test::EmptyStore;

std::string Written() {
  CFFArchive a;
  EXPECT_EQ(sCfgWriteMain(a), "");
  return mapcfg_test::Bytes(a);
}

TEST(StoreStream, SeededStoresReadBackFieldByField) {
  mapcfg_test::StoreGuard guard;
  Random r(20261124u);
  for (size_t n : {0u, 1u, 2u, 7u, 40u}) {
    EmptyStore();
    FillStore(r, n);
    const std::string before = mapcfg_test::Lines(sDescribeMainStore());
    const std::string bytes = Written();
    EmptyStore();
    CFFArchive a;
    EXPECT_EQ(sCfgReadMain(mapcfg_test::Loaded(a, bytes), 0xFFFFFFFFu), "") << n;
    EXPECT_EQ(mapcfg_test::Lines(sDescribeMainStore()), before) << n;
    EXPECT_EQ(Written(), bytes) << n;
  }
}

// The example configuration's store, byte for byte as it was first written:
// tests/data/archive/field_en.arc (which `mapcfg show --archive` reads in
// the tool's tests).
TEST(StoreStream, ExampleStoreIsTheGoldenFile) {
  mapcfg_test::StoreGuard guard;
  EmptyStore();
  *sGetCfgLang() = 0;
  CCfgScript script;
  script.Open(MAPCFG_EXAMPLES "/en/field.cfg", 0);
  for (auto read : {sCfgReadSysCfgParam, sCfgReadLibDlls, sCfgReadMenuFuns, sCfgReadStatusProps,
                    sCfgReadInterpretProps, sCfgReadLithProps, sCfgReadColors, sCfgReadPrevColor, sCfgReadYQXSs,
                    sCfgReadHYWs, sCfgReadYXQZs, sCfgReadGZFHs, sCfgReadTextFmts, sCfgReadDataSrcs, sCfgReadLabelCrvs})
    read(script);
  EXPECT_EQ(Written(), mapcfg_test::ReadAll(MAPCFG_TEST_DATA "/archive/field_en.arc"));
}

TEST(StoreStream, ReadingStopsAtTheFirstFailureAndKeepsWhatWasRead) {
  mapcfg_test::StoreGuard guard;
  Random r(7);
  EmptyStore();
  FillStore(r, 3);
  // Steps 1 to 6 only: system parameters, extension and menu lists, the
  // three catalogues, colours.
  CFFArchive a;
  a.PutSysCfgParam(sCfgGetSysCfgParamPtr());
  for (StringArray* list : {sCfgGetLibNamesPtr(), sCfgGetLibDllsPtr(), sCfgGetMenuNamesPtr(), sCfgGetMenuFunsPtr()})
    a.PutStringArray(*list);
  a.PutStringArray(*sCfgGetStatusCodesPtr());
  a.PutStatusPropArray(*sCfgGetStatusPropsPtr());
  a.PutStringArray(*sCfgGetInterpretCodesPtr());
  a.PutInterpretPropArray(*sCfgGetInterpretPropsPtr());
  a.PutStringArray(*sCfgGetLithCodesPtr());
  a.PutLithPropArray(*sCfgGetLithPropsPtr());
  a.PutStringArray(*sCfgGetColorNamesPtr());
  a.PutDWordArray(*sCfgGetColorsPtr());
  const FieldTexts full = sDescribeMainStore();
  const std::string bytes = mapcfg_test::Bytes(a);

  EmptyStore();
  CFFArchive in;
  EXPECT_EQ(sCfgReadMain(mapcfg_test::Loaded(in, bytes), 0xFFFFFFFFu), sGetInfoStr(838));
  const FieldTexts read = sDescribeMainStore();
  // Everything up to the colours is back; nothing after them was read.
  size_t kept = 0;
  while (kept < full.size() && full[kept].name.compare(0, 6, "colors") != 0) ++kept;
  while (kept < full.size() && full[kept].name.compare(0, 6, "colors") == 0) ++kept;
  ASSERT_GE(read.size(), kept);
  for (size_t i = 0; i < kept; ++i) EXPECT_EQ(read[i].value, full[i].value) << read[i].name;
  EXPECT_TRUE(sCfgGetYQXSNamesPtr()->empty());
  EXPECT_TRUE(sCfgGetTextFmtsPtr()->empty());
}

TEST(StoreStream, ClearPlateEmptiesEveryTableWhereItStands) {
  mapcfg_test::StoreGuard guard;
  Random r(11);
  FillStore(r, 5);
  const auto tables = [] {
    return std::vector<const void*>{sCfgGetSysCfgParamPtr(), sCfgGetStatusCodesPtr(), sCfgGetStatusPropsPtr(),
                                    sCfgGetLithPropsPtr(),   sCfgGetColorsPtr(),      sCfgGetPrevColorPtr(),
                                    sCfgGetTextFmtsPtr(),    sCfgGetLabelCrvValsPtr()};
  };
  const std::vector<const void*> before = tables();
  sCfgClearPlate();
  EXPECT_EQ(tables(), before);
  // What is left is the extension and menu lists (they belong to the host's
  // modules, not to the configuration), the empty system parameters and the
  // preset colours' zero slots.
  for (const FieldText& f : sDescribeMainStore()) {
    const bool lists = f.name.compare(0, 3, "lib") == 0 || f.name.compare(0, 4, "menu") == 0;
    const bool fixed = f.name.compare(0, 12, "sysCfgParam.") == 0 || f.name.compare(0, 10, "prevColors") == 0;
    EXPECT_TRUE(lists || (fixed && (f.value == "0" || f.value == "0x000000"))) << f.name << " = " << f.value;
  }
}

}  // namespace
