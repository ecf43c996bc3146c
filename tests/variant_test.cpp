// Variants to Strings and numbers.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <cmath>
#include <limits>

using namespace mapcfg;

namespace {

// What all six conversions give for one variant.
struct Results {
  String text;
  double dbl = -1;
  float flt = -1;
  int32_t lng = -1;
  int integer = -1;
  bool flag = false;
};

Results Convert(const VARIANT& v) {
  Results r;
  sVar2Str(v, r.text);
  sVar2Dbl(v, r.dbl);
  sVar2Flt(v, r.flt);
  sVar2Long(v, r.lng);
  sVar2Int(v, r.integer);
  sVar2Bool(v, r.flag);
  return r;
}

template <typename Set>
VARIANT Make(uint16_t vt, Set set) {
  VARIANT v;
  v.vt = vt;
  set(v);
  return v;
}

VARIANT Real(double d) {
  return Make(VT_R8, [d](VARIANT& v) { v.dblVal = d; });
}

VARIANT Date(double date) {
  return Make(VT_DATE, [date](VARIANT& v) { v.date = date; });
}

}  // namespace

TEST(Variant, IntegersAndBooleans) {
  Results r = Convert(Make(VT_I2, [](VARIANT& v) { v.iVal = -300; }));
  EXPECT_EQ(r.text, "-300");
  EXPECT_EQ(r.dbl + r.flt + r.lng + r.integer, -1200.0);
  EXPECT_TRUE(r.flag);
  EXPECT_EQ(Convert(Make(VT_I1, [](VARIANT& v) { v.cVal = -5; })).integer, 251);  // read as 16 bits
  EXPECT_EQ(Convert(Make(VT_UI1, [](VARIANT& v) { v.bVal = 200; })).text, "200");
  EXPECT_EQ(Convert(Make(VT_UI2, [](VARIANT& v) { v.uiVal = 65535; })).text, "65535");
  r = Convert(Make(VT_UI4, [](VARIANT& v) { v.ulVal = 4294967295u; }));
  EXPECT_EQ(r.text, "4294967295");
  EXPECT_EQ(r.dbl, 4294967295.0);
  EXPECT_EQ(r.lng + r.integer, -2);
  EXPECT_EQ(Convert(Make(VT_I4, [](VARIANT& v) { v.lVal = -2147483647 - 1; })).text, "-2147483648");
  r = Convert(Make(VT_BOOL, [](VARIANT& v) { v.boolVal = -1; }));
  EXPECT_EQ(r.text, "1");
  EXPECT_EQ(r.dbl + r.lng, 2.0);
  EXPECT_TRUE(r.flag);
  EXPECT_EQ(Convert(Make(VT_BOOL, [](VARIANT& v) { v.boolVal = 0; })).text, "0");
  for (int tag : {0, 1, 10, 12, 99}) {  // empty, null, error, variant, unknown
    r = Convert(Make(static_cast<uint16_t>(tag), [](VARIANT& v) { v.lVal = 7; }));
    EXPECT_EQ(r.text, "");
    EXPECT_EQ(r.dbl + r.flt + r.lng + r.integer, 0.0);
    EXPECT_FALSE(r.flag);
  }
}

TEST(Variant, RealsRoundTwoWays) {
  Results r = Convert(Real(2.5));
  EXPECT_EQ(r.text, "2.5");
  EXPECT_EQ(r.lng, 3);
  EXPECT_EQ(r.integer, 2);
  r = Convert(Real(-2.5));
  EXPECT_EQ(r.lng, -2);
  EXPECT_EQ(r.integer, -3);
  EXPECT_FALSE(Convert(Real(0.4)).flag);
  r = Convert(Real(1e300));
  EXPECT_EQ(r.lng, 2147483647);
  EXPECT_EQ(r.flt, std::numeric_limits<float>::infinity());
  r = Convert(Make(VT_R4, [](VARIANT& v) { v.fltVal = 0.1f; }));
  EXPECT_EQ(r.text, "0.1");
  EXPECT_EQ(r.dbl, static_cast<double>(0.1f));
}

TEST(Variant, CurrencyAndDecimal) {
  const auto currency = [](int32_t hi, uint32_t lo) {
    return Make(VT_CY, [hi, lo](VARIANT& v) { v.cyVal = CY{lo, hi}; });
  };
  Results r = Convert(currency(0, 12345678));
  EXPECT_EQ(r.text, "1234.5678");
  EXPECT_DOUBLE_EQ(r.dbl, 1234.5678);
  r = Convert(currency(3, 5000));
  EXPECT_EQ(r.text, "1288490.6888");  // (3 * 2^32 + 5000) / 10000
  EXPECT_DOUBLE_EQ(r.dbl, 3.5);       // the packing older versions read
  EXPECT_EQ(r.integer, 3);
  EXPECT_EQ(Convert(currency(-1, 4294967295u - 4999)).text, "-0.5");
  EXPECT_EQ(Convert(currency(-2147483647 - 1, 0)).text, "-922337203685477.5808");

  r = Convert(Make(VT_DECIMAL, [](VARIANT& v) { v.decVal = DECIMAL{0, 2, 128, 0, 12345}; }));
  EXPECT_EQ(r.text, "-123.45");
  EXPECT_DOUBLE_EQ(r.dbl, -123.45);
  EXPECT_EQ(r.lng, -122);  // trunc(-123.45 + 0.5)
  EXPECT_EQ(r.integer, -123);
  // The low 64 bits are read as a signed value.
  EXPECT_EQ(Convert(Make(VT_DECIMAL, [](VARIANT& v) { v.decVal = DECIMAL{0, 0, 0, 9, ~0ull}; })).dbl, -1.0);
}

TEST(Variant, Dates) {
  Results r = Convert(Date(38791 + (14 * 3600 + 30 * 60 + 45) / 86400.0));  // 2006-03-15
  EXPECT_EQ(r.text, "2006-03-15 14:30:45");
  EXPECT_NEAR(r.dbl, 20060315.143045, 1e-8);
  EXPECT_EQ(r.lng, 20060315);
  EXPECT_EQ(r.integer, 20060315);
  const struct {
    double date;
    const char* text;
  } cases[] = {{0, "1899-12-30"},
               {61, "1900-03-01"},  // no 1900-02-29
               {2958465 + 86399 / 86400.0, "9999-12-31 23:59:59"},
               {-657434, "0100-01-01"},
               {-1.25, "1899-12-29 06:00:00"},  // a negative date counts its fraction forwards
               {-0.5, "1899-12-30 12:00:00"},
               {-1.9999999, "1899-12-30"},  // 23:59:59.99 rounds to the next midnight
               {38791.4999999, "2006-03-15 12:00:00"},
               {-657435, ""},
               {2958466, ""},
               {std::nan(""), ""}};
  for (const auto& c : cases) EXPECT_EQ(Convert(Date(c.date)).text, c.text) << c.date;
  r = Convert(Date(std::numeric_limits<double>::infinity()));
  EXPECT_EQ(r.dbl + r.lng, 0.0);
}

TEST(Variant, Texts) {
  Results r = Convert(Make(VT_BSTR, [](VARIANT& v) { v.bstrVal = u"1\t2.5"; }));
  EXPECT_EQ(r.text, "1\t2.5");
  EXPECT_EQ(r.dbl, 12.5);  // control characters dropped before scanning
  EXPECT_EQ(r.flt, 12.5f);
  EXPECT_EQ(r.lng, 12);
  EXPECT_EQ(Convert(Make(VT_BSTR, [](VARIANT& v) { v.bstrVal = u"W\u00e9ll \U0001F600!"; })).text, "W?ll ?!");
  r = Convert(Make(VT_BSTR, [](VARIANT& v) { v.bstrVal = nullptr; }));
  EXPECT_EQ(r.text, "");
  EXPECT_EQ(r.dbl, 0.0);
}
