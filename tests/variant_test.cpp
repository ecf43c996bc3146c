// Variants to Strings and numbers.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <cmath>
#include <limits>

using namespace mapcfg;

namespace {

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

VARIANT Real(double d) {
  VARIANT v;
  v.vt = VT_R8;
  v.dblVal = d;
  return v;
}

// A variant date from calendar fields, days counted from 1899-12-30.
VARIANT Date(double days, int h, int m, int s) {
  VARIANT v;
  v.vt = VT_DATE;
  v.date = days + (h * 3600 + m * 60 + s) / 86400.0;
  return v;
}

}  // namespace

TEST(Variant, IntegersAndBooleans) {
  VARIANT v;
  v.vt = VT_I2;
  v.iVal = -300;
  Results r = Convert(v);
  EXPECT_EQ(r.text, "-300");
  EXPECT_EQ(r.dbl, -300.0);
  EXPECT_EQ(r.lng, -300);
  EXPECT_TRUE(r.flag);
  v = VARIANT();
  v.vt = VT_I1;
  v.cVal = -5;  // read through the 16-bit field
  EXPECT_EQ(Convert(v).integer, 251);
  v = VARIANT();
  v.vt = VT_UI1;
  v.bVal = 200;
  EXPECT_EQ(Convert(v).text, "200");
  v.vt = VT_UI2;
  v.uiVal = 65535;
  EXPECT_EQ(Convert(v).text, "65535");
  v.vt = VT_UI4;
  v.ulVal = 4294967295u;
  r = Convert(v);
  EXPECT_EQ(r.text, "4294967295");
  EXPECT_EQ(r.dbl, 4294967295.0);
  EXPECT_EQ(r.lng, -1);
  EXPECT_EQ(r.integer, -1);
  v.vt = VT_I4;
  v.lVal = -2147483647 - 1;
  EXPECT_EQ(Convert(v).text, "-2147483648");
  v.vt = VT_BOOL;
  v.boolVal = -1;
  r = Convert(v);
  EXPECT_EQ(r.text, "1");
  EXPECT_EQ(r.dbl, 1.0);
  EXPECT_EQ(r.lng, 1);
  EXPECT_TRUE(r.flag);
  v.boolVal = 0;
  EXPECT_EQ(Convert(v).text, "0");
  EXPECT_FALSE(Convert(v).flag);
  for (int tag : {0, 1, 10, 12, 99}) {  // empty, null, error, variant, unknown
    v.vt = static_cast<uint16_t>(tag);
    r = Convert(v);
    EXPECT_EQ(r.text, "");
    EXPECT_EQ(r.dbl, 0.0);
    EXPECT_EQ(r.flt, 0.0f);
    EXPECT_EQ(r.lng, 0);
    EXPECT_EQ(r.integer, 0);
    EXPECT_FALSE(r.flag);
  }
}

TEST(Variant, RealsRoundTwoWays) {
  Results r = Convert(Real(2.5));
  EXPECT_EQ(r.lng, 3);
  EXPECT_EQ(r.integer, 2);
  EXPECT_EQ(r.text, "2.5");
  r = Convert(Real(-2.5));
  EXPECT_EQ(r.lng, -2);
  EXPECT_EQ(r.integer, -3);
  EXPECT_FALSE(Convert(Real(0.4)).flag);  // sToInteger(0.4) is 0
  r = Convert(Real(1e300));
  EXPECT_EQ(r.lng, 2147483647);
  EXPECT_EQ(r.flt, std::numeric_limits<float>::infinity());
  VARIANT f;
  f.vt = VT_R4;
  f.fltVal = 0.1f;
  r = Convert(f);
  EXPECT_EQ(r.text, "0.1");
  EXPECT_EQ(r.flt, 0.1f);
  EXPECT_EQ(r.dbl, static_cast<double>(0.1f));
}

TEST(Variant, CurrencyAndDecimal) {
  VARIANT v;
  v.vt = VT_CY;
  v.cyVal.Hi = 0;
  v.cyVal.Lo = 12345678;  // 1234.5678
  Results r = Convert(v);
  EXPECT_EQ(r.text, "1234.5678");
  EXPECT_DOUBLE_EQ(r.dbl, 1234.5678);
  EXPECT_EQ(r.lng, 0);
  v.cyVal.Hi = 3;
  v.cyVal.Lo = 5000;
  r = Convert(v);
  EXPECT_EQ(r.text, "1288490.6888");  // (3 * 2^32 + 5000) / 10000
  EXPECT_DOUBLE_EQ(r.dbl, 3.5);       // the packing older versions read
  EXPECT_EQ(r.integer, 3);
  v.cyVal.Hi = -1;
  v.cyVal.Lo = 4294967295u - 4999;  // -5000
  EXPECT_EQ(Convert(v).text, "-0.5");
  v.cyVal.Hi = -2147483647 - 1;
  v.cyVal.Lo = 0;
  EXPECT_EQ(Convert(v).text, "-922337203685477.5808");

  VARIANT d;
  d.vt = VT_DECIMAL;
  d.decVal.scale = 2;
  d.decVal.sign = 128;
  d.decVal.Lo64 = 12345;
  r = Convert(d);
  EXPECT_EQ(r.text, "-123.45");
  EXPECT_DOUBLE_EQ(r.dbl, -123.45);
  EXPECT_EQ(r.lng, -122);  // trunc(-123.45 + 0.5)
  EXPECT_EQ(r.integer, -123);
  d.decVal.sign = 0;
  d.decVal.scale = 0;
  d.decVal.Lo64 = 0xFFFFFFFFFFFFFFFFull;  // read as a signed 64-bit value
  EXPECT_EQ(Convert(d).dbl, -1.0);
}

TEST(Variant, Dates) {
  Results r = Convert(Date(38791, 14, 30, 45));  // 2006-03-15
  EXPECT_EQ(r.text, "2006-03-15 14:30:45");
  EXPECT_NEAR(r.dbl, 20060315.143045, 1e-8);
  EXPECT_EQ(r.lng, 20060315);
  EXPECT_EQ(r.integer, 20060315);
  EXPECT_EQ(Convert(Date(0, 0, 0, 0)).text, "1899-12-30");
  EXPECT_EQ(Convert(Date(61, 0, 0, 0)).text, "1900-03-01");  // no 1900-02-29
  EXPECT_EQ(Convert(Date(2958465, 23, 59, 59)).text, "9999-12-31 23:59:59");
  EXPECT_EQ(Convert(Date(-657434, 0, 0, 0)).text, "0100-01-01");
  // A negative date counts its fraction forwards from midnight.
  VARIANT v;
  v.vt = VT_DATE;
  v.date = -1.25;
  EXPECT_EQ(Convert(v).text, "1899-12-29 06:00:00");
  v.date = -0.5;
  EXPECT_EQ(Convert(v).text, "1899-12-30 12:00:00");
  v.date = -1.9999999;  // 23:59:59.99 rounds to the next midnight
  EXPECT_EQ(Convert(v).text, "1899-12-30");
  v.date = 38791.4999999;
  EXPECT_EQ(Convert(v).text, "2006-03-15 12:00:00");
  for (double bad : {-657435.0, 2958466.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
    v.date = bad;
    r = Convert(v);
    EXPECT_EQ(r.text, "");
    EXPECT_EQ(r.dbl, 0.0);
    EXPECT_EQ(r.lng, 0);
  }
}

TEST(Variant, Texts) {
  VARIANT v;
  v.vt = VT_BSTR;
  v.bstrVal = u"1\t2.5";
  Results r = Convert(v);
  EXPECT_EQ(r.dbl, 12.5);  // control characters dropped before scanning
  EXPECT_EQ(r.flt, 12.5f);
  EXPECT_EQ(r.lng, 12);
  EXPECT_EQ(r.text, "1\t2.5");
  v.bstrVal = u"W\u00e9ll \U0001F600!";
  EXPECT_EQ(Convert(v).text, "W?ll ?!");
  v.bstrVal = nullptr;
  r = Convert(v);
  EXPECT_EQ(r.text, "");
  EXPECT_EQ(r.dbl, 0.0);
  v.bstrVal = u" -7.6e1x";
  r = Convert(v);
  EXPECT_EQ(r.dbl, -76.0);
  EXPECT_EQ(r.integer, -7);
  EXPECT_TRUE(r.flag);
}
