// Number and text conversions, angles, prefixes, well names, drawing text.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

using namespace mapcfg;

namespace {

// "%.*f" of the C library; the tests run in the C locale.
std::string CFixed(double v, int decimals) {
  char buf[512];
  std::snprintf(buf, sizeof buf, "%.*f", decimals, v);
  return buf;
}

// The loops that the normalisers must reproduce, run literally.
double Loop360(double v, double p) {
  while (v < 0) v += p;
  while (v >= p) v -= p;
  return v;
}
double Loop180(double v) {
  while (v > 180) v -= 360;
  while (v <= -180) v += 360;
  return v;
}

}  // namespace

TEST(Conversions, IntegerTextsAndOverloads) {
  EXPECT_EQ(sToString('A'), "65");
  EXPECT_EQ(sToString(static_cast<char>(-56)), "-56");  // signed on every platform
  EXPECT_EQ(sToString(static_cast<short>(-32768)), "-32768");
  EXPECT_EQ(sToString(int32_t{-2147483647 - 1}), "-2147483648");
  EXPECT_EQ(sToString(uint8_t{200}), "200");
  EXPECT_EQ(sToString(4000000000u), "4000000000");
  EXPECT_EQ(sToString(-5L), "-5");
  EXPECT_EQ(sToString(int64_t{-9000000000}), "-9000000000");
  EXPECT_EQ(sToString(uint64_t{18446744073709551615u}), "18446744073709551615");
  EXPECT_EQ(sToString(true), "1");
}

TEST(Conversions, NumberTextsTrimAndRound) {
  EXPECT_EQ(sToString(1.0), "1");
  EXPECT_EQ(sToString(0.1f), "0.1");
  EXPECT_EQ(sToString(1.0000004), "1");
  EXPECT_EQ(sToString(2.0000005), "2.000001");  // rounds to 6 decimals
  EXPECT_EQ(sToString(123.45678f), "123.4568");
  EXPECT_EQ(sToString(-0.0), "-0");               // "-0.000000": zeros, ".", then no "-"
  EXPECT_EQ(sToStdNumStr(12.5, 3, 1, 0), "12.5");
  EXPECT_EQ(sToStdNumStr(3.0, 2, 1, 0), "3");
  EXPECT_EQ(sToStdNumStr(0.0001, 3, 1, 1), "");
  EXPECT_EQ(sToStdNumStr(0.0001, 3, 1, 0), "0");
  EXPECT_EQ(sToStdNumStr(-0.0001, 3, 1, 1), "-0");
  EXPECT_EQ(sToStdNumStr(100.0, 0, 1, 0), "100");
  EXPECT_EQ(sToStdNumStr(100.0, 2, 0, 0), "100.00");
  EXPECT_EQ(sToStdNumStr(0.0, 2, 0, 1), "0.00");
  EXPECT_EQ(sToStdNumStr(2.5, -3, 1, 0), "2");  // negative decimals: none
  EXPECT_EQ(sToStdNumStr(0.1f, 10, 0, 0), "0.1000000015");  // the float's own value
  EXPECT_EQ(sToStdNumStr(5e-324, 2000, 1, 0).size(), 1076u);
  EXPECT_EQ(sToStdNumStr(std::numeric_limits<double>::infinity(), 3, 1, 0), "inf");
  // Same digits as the C library's "%.*f", ties and huge values included.
  std::mt19937_64 rng(7);
  for (int i = 0; i < 3000; ++i) {
    const double v = std::ldexp(static_cast<double>(rng() >> 11) - 4503599627370496.0,
                                static_cast<int>(rng() % 140) - 100);
    const int d = static_cast<int>(rng() % 12);
    ASSERT_EQ(sToStdNumStr(v, d, 0, 0), CFixed(v, d)) << v;
  }
  EXPECT_EQ(sToStdNumStr(1e300, 1, 0, 0), CFixed(1e300, 1));
  EXPECT_EQ(sToStdNumStr(0.125, 2, 0, 0), CFixed(0.125, 2));
}

TEST(Conversions, TextToNumbers) {
  EXPECT_EQ(sToInteger(""), 0);
  EXPECT_EQ(sToInteger(static_cast<const char*>(nullptr)), 0);
  EXPECT_EQ(sToInteger("12abc"), 12);
  EXPECT_EQ(sToInteger("abc"), 0);
  EXPECT_EQ(sToInteger(" \t\n-42 7"), -42);
  EXPECT_EQ(sToInteger("+8"), 8);
  EXPECT_EQ(sToInteger("- 8"), 0);
  EXPECT_EQ(sToInteger("3.9"), 3);
  EXPECT_EQ(sToInteger("-2147483648"), -2147483647 - 1);
  EXPECT_EQ(sToInteger("99999999999999999999"), 2147483647);
  EXPECT_EQ(sToInteger("-99999999999"), -2147483647 - 1);
  EXPECT_EQ(sToInteger(std::string("17")), 17);

  EXPECT_EQ(sToDWord("ff"), 255u);
  EXPECT_EQ(sToDWord(" 0xFFffFF zz"), 0xFFFFFFu);
  EXPECT_EQ(sToDWord("0x"), 0u);
  EXPECT_EQ(sToDWord("-1"), 0xFFFFFFFFu);
  EXPECT_EQ(sToDWord("12345678"), 0x12345678u);
  EXPECT_EQ(sToDWord("1ffffffff"), 0xFFFFFFFFu);
  EXPECT_EQ(sToDWord("g1"), 0u);

  EXPECT_EQ(sToDouble("  -2.5e2xyz"), -250.0);
  EXPECT_EQ(sToDouble(".5"), 0.5);
  EXPECT_EQ(sToDouble("5."), 5.0);
  EXPECT_EQ(sToDouble("1e"), 1.0);
  EXPECT_EQ(sToDouble("1e+"), 1.0);
  EXPECT_EQ(sToDouble("."), 0.0);
  EXPECT_EQ(sToDouble("-"), 0.0);
  EXPECT_EQ(sToDouble("inf"), 0.0);
  EXPECT_EQ(sToDouble("nan"), 0.0);
  EXPECT_EQ(sToDouble("1e999"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(sToDouble("-1e999"), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(sToDouble("1e-999"), 0.0);
  EXPECT_EQ(sToDouble("0e99999999999999999999"), 0.0);
  EXPECT_EQ(sToDouble("0.000000000000000000000000000001e330"), 1e300);
  EXPECT_EQ(sToFloat("0.1"), 0.1f);
  EXPECT_EQ(sToFloat("1e39"), std::numeric_limits<float>::infinity());
  EXPECT_EQ(sToFloat("1.00000005960464477539062500001"), std::strtof("1.00000005960464477539062500001", nullptr));
  // Every decimal text reads as strtod / strtof read it.
  std::mt19937_64 rng(11);
  for (int i = 0; i < 3000; ++i) {
    std::string t = std::to_string(rng() % 100000000) + "." + std::to_string(rng() % 1000000000) + "e" +
                    std::to_string(static_cast<int>(rng() % 80) - 40);
    if (i % 2) t = "-" + t;
    ASSERT_EQ(sToDouble(t), std::strtod(t.c_str(), nullptr)) << t;
    ASSERT_EQ(sToFloat(t), std::strtof(t.c_str(), nullptr)) << t;
  }
}

TEST(Conversions, RoundingAndInt64) {
  EXPECT_EQ(sToInteger(2.5), 2);
  EXPECT_EQ(sToInteger(2.51), 3);
  EXPECT_EQ(sToInteger(-2.5), -3);
  EXPECT_EQ(sToInteger(-2.49), -2);
  EXPECT_EQ(sToInteger(-2.4), -2);
  EXPECT_EQ(sToInteger(0.5), 0);
  EXPECT_EQ(sToInteger(1e20), 2147483647);
  EXPECT_EQ(sToInteger(-1e20), -2147483647 - 1);
  EXPECT_EQ(sToInteger(std::nan("")), 0);
  for (int64_t v : {int64_t{0}, int64_t{-1}, int64_t{9007199254740993}, int64_t{-9007199254740995},
                    std::numeric_limits<int64_t>::max(), std::numeric_limits<int64_t>::min()})
    EXPECT_EQ(sInt64ToDouble(v), static_cast<double>(v)) << v;
}

// Texts and numbers are the same when the host has a comma decimal point.
TEST(Conversions, IndependentOfHostLocale) {
  const std::string saved = std::setlocale(LC_NUMERIC, nullptr);
  const char* names[] = {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "ru_RU.UTF-8"};
  bool switched = false;
  for (const char* n : names)
    if (std::setlocale(LC_NUMERIC, n)) {
      switched = true;
      break;
    }
  if (!switched) GTEST_SKIP() << "no locale with a comma decimal point is installed";
  char probe[16];
  std::snprintf(probe, sizeof probe, "%.1f", 2.5);
  const std::string text = sToString(2.5);
  const double value = sToDouble("2.5");
  const float fvalue = sToFloat("0.75");
  const std::string fixed = sToStdNumStr(-1234.5678, 2, 0, 0);
  std::setlocale(LC_NUMERIC, saved.c_str());
  EXPECT_EQ(std::string(probe), "2,5");  // the locale really is in force
  EXPECT_EQ(text, "2.5");
  EXPECT_EQ(value, 2.5);
  EXPECT_EQ(fvalue, 0.75f);
  EXPECT_EQ(fixed, "-1234.57");
}

TEST(Conversions, StdNumberDropsControlBytes) {
  EXPECT_EQ(sStdNumber("1\t2.5\r\n"), "12.5");
  EXPECT_EQ(sStdNumber(std::string("\x1f" "a\x7f\xb0\xa1 ")), "a\x7f\xb0\xa1 ");
  EXPECT_EQ(sStdNumber(static_cast<const char*>(nullptr)), "");
}

TEST(Angles, DegreesMinutesSeconds) {
  EXPECT_NEAR(sDMSToDegree(-30.3), -30.5, 1e-12);
  EXPECT_NEAR(sDMSToDegree(116.3045), 116.0 + 30.0 / 60 + 45.0 / 3600, 1e-9);
  // The fraction below the second is scaled by 0.0001 one way ...
  EXPECT_NEAR(sDMSToDegree(10.30455), 10.0 + 0.5 + 45.0 / 3600 + 0.5 * 0.0001, 1e-9);
  // ... and by 1/3600 the other.
  EXPECT_NEAR(sDegreeToDMS(10.5), 10.30, 1e-12);
  EXPECT_NEAR(sDegreeToDMS(-(10.5 + 4.5 / 3600)), -(10.3004 + 0.5 / 3600), 1e-9);
  EXPECT_NEAR(sDegreeToDMS(sDMSToDegree(45.1530)), 45.1530, 1e-9);
}

TEST(Angles, NormalisersMatchRepeatedAddition) {
  EXPECT_EQ(sGetStdAngle180(-180.0), 180.0);
  EXPECT_EQ(sGetStdAngle180(540.0), 180.0);
  EXPECT_EQ(sGetStdAngle180(-190.0), 170.0);
  EXPECT_EQ(sGetStdAngle360(-1e-20), 0.0);  // -1e-20 + 360 rounds to 360
  EXPECT_EQ(sGetStdAngle360(720.0), 0.0);
  EXPECT_FALSE(std::signbit(sGetStdAngle360(-720.0)));
  EXPECT_EQ(sGetStdRadianPI2(6.283185307), 0.0);
  std::mt19937_64 rng(3);
  std::uniform_real_distribution<double> small(-2000.0, 2000.0), large(-1e6, 1e6);
  for (int i = 0; i < 400; ++i) {
    const double a = small(rng);
    ASSERT_EQ(sGetStdAngle360(a), Loop360(a, 360.0)) << a;
    ASSERT_EQ(sGetStdAngle180(a), Loop180(a)) << a;
    ASSERT_EQ(sGetStdRadianPI2(a), Loop360(a, 6.283185307)) << a;
  }
  // Far from 0 the radian steps round at every addition; the jumps must
  // land where single steps would.
  for (int i = 0; i < 20; ++i) {
    const double a = large(rng);
    ASSERT_EQ(sGetStdRadianPI2(a), Loop360(a, 6.283185307)) << a;
    ASSERT_EQ(sGetStdAngle360(a * 100), Loop360(a * 100, 360.0)) << a;
  }
  // Values where the plain loop never ends still come back at once.
  const double inf = std::numeric_limits<double>::infinity();
  for (double v : {inf, -inf, std::nan("")}) {
    EXPECT_TRUE(std::isnan(sGetStdAngle360(v)));
    EXPECT_TRUE(std::isnan(sGetStdAngle180(v)));
    EXPECT_TRUE(std::isnan(sGetStdRadianPI2(v)));
  }
  for (double v : {1e300, -1e300, 1.7e308, -1.7e308, 1e18, -3e19, 72057594037927936.0 * 3}) {
    const double a = sGetStdAngle360(v), b = sGetStdAngle180(v), c = sGetStdRadianPI2(v);
    EXPECT_TRUE(a >= 0 && a < 360) << v << " " << a;
    EXPECT_TRUE(b > -180 && b <= 180) << v << " " << b;
    EXPECT_TRUE(c >= 0 && c < 6.283185307) << v << " " << c;
  }
  EXPECT_EQ(sGetStdAngle360(1e300), std::fmod(1e300, 360.0));
}

TEST(Conversions, ChainageAndSnapping) {
  String high, low;
  sGetKMHighLow2Str(1234567, high, low);
  EXPECT_EQ(high, "12");
  EXPECT_EQ(low, "34.567");
  sGetKMHighLow2Str(5000, high, low);
  EXPECT_EQ(high, "  ");
  EXPECT_EQ(low, "05");
  sGetKMHighLow2Str(312000, high, low);
  EXPECT_EQ(high, "03");
  EXPECT_EQ(low, "12");
  sGetKMHighLow2Str(-312000, high, low);
  EXPECT_EQ(high, "-3");
  EXPECT_EQ(low, "-12");

  CDblPoint ref(1, 1), p(4, 3);
  sToHVPoint(ref, p);
  EXPECT_EQ(p.x, 4.0);
  EXPECT_EQ(p.y, 1.0);
  CDblPoint tie(3, 3);
  sToHVPoint(ref, tie);  // equal distances snap horizontally
  EXPECT_EQ(tie.y, 1.0);
  CPoint iref(0, 0), ip(1, -5), far(-2147483647 - 1, 2147483647);
  sToHVPoint(iref, ip);
  EXPECT_EQ(ip, CPoint(0, -5));
  CPoint fref(2147483647, 0);
  sToHVPoint(fref, far);  // dx = 2^32 - 1 does not wrap
  EXPECT_EQ(far, CPoint(-2147483647 - 1, 0));
}

TEST(Conversions, CommonPrefixes) {
  EXPECT_EQ(sLeftFindSameCnt("abCD", "ABcx"), 3);
  EXPECT_EQ(sLeftFindSameCnt("", "x"), 0);
  EXPECT_EQ(sLeftGetSameStr("wEll-1", "WELL-2"), "WELL-");
  EXPECT_EQ(sLeftGetSameStr(nullptr, "a"), "");
  // A double-byte character counts whole; its trail byte is not case-folded.
  EXPECT_EQ(sLeftFindSameCnt("\x81" "a1", "\x81" "A1"), 0);
  EXPECT_EQ(sLeftGetSameStr("\xb0" "a" "b", "\xb0" "a" "B"), "\xb0" "a" "B");
  EXPECT_EQ(sLeftCmpStr("ab", "ab-c", "-", 1), 1);
  EXPECT_EQ(sLeftCmpStr("ab-c", "ab", "-", 1), 0);
  EXPECT_EQ(sLeftCmpStr("ab-c", "ab", "-", 0), 1);
  EXPECT_EQ(sLeftCmpStr("ab", "abc", "-", 0), 0);
  EXPECT_EQ(sLeftCmpStr("ab", "ABC", "", 1), 1);
  EXPECT_EQ(sLeftCmpStr("AB", "ab", "-", 1), 1);
  EXPECT_EQ(sLeftCmpStr("ax", "ab", "", 0), 0);
}

TEST(Conversions, WellNames) {
  String id;
  EXPECT_EQ(sGetWellID("Wen 12-5X", 0, nullptr, id), 2);
  EXPECT_EQ(id, "Wen");
  sGetWellID("Wen 12-5X", 1, nullptr, id);
  EXPECT_EQ(id, "12");
  sGetWellID("Wen 12-5X", 2, "", id);
  EXPECT_EQ(id, "5X");
  sGetWellID("Wen 12-5X", -1, nullptr, id);
  EXPECT_EQ(id, "12-5X");
  EXPECT_EQ(sGetWellID("Wen 12-5X", 3, nullptr, id), 2);
  EXPECT_EQ(id, "");
  EXPECT_EQ(sGetWellID("W3/7/", 3, "/", id), 3);  // empty pieces are kept
  EXPECT_EQ(id, "");
  EXPECT_EQ(sGetWellID("Guan", 0, nullptr, id), 0);
  EXPECT_EQ(id, "Guan");
  // A GBK name: the digits of the number are never trail bytes.
  EXPECT_EQ(sGetWellID("\xe5\xa7" "\xb1\xb1" "3-12", 0, nullptr, id), 2);
  EXPECT_EQ(id, "\xe5\xa7" "\xb1\xb1");
}

TEST(Conversions, DrawingTextMarkup) {
  String text = "E";
  sToUpDownMarkStr(text, "s3", "2");
  EXPECT_EQ(text, "E`s3`^2^");
  String odd = "x";
  sToUpDownMarkStr(odd, "", "^a\\b`");
  EXPECT_EQ(odd, "x^\\^a\\\\b\\`^");
  StringArray pieces;
  std::vector<char> kinds;
  String marked = "\xb0\x5e" + odd + "`2`y";  // 0x5E as a trail byte is no mark
  ASSERT_EQ(sDrawFmtText_DiviSubStr(marked, pieces, kinds), 4);
  EXPECT_EQ(pieces, (StringArray{"\xb0\x5ex", "^a\\b`", "2", "y"}));
  EXPECT_EQ(kinds, (std::vector<char>{kDrawTextNormal, kDrawTextUp, kDrawTextDown, kDrawTextNormal}));
  EXPECT_EQ(marked, "\xb0\x5ex^a\\b`2y");
  String direct = "a^b`c`d^e\\x";  // a subscript mark inside superscript switches to subscript
  EXPECT_EQ(sDrawFmtText_DiviSubStr(direct, pieces, kinds), 5);
  EXPECT_EQ(kinds, (std::vector<char>{kDrawTextNormal, kDrawTextUp, kDrawTextDown, kDrawTextNormal,
                                      kDrawTextUp}));
  EXPECT_EQ(pieces.back(), "e\\x");
}
