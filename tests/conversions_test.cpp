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

TEST(Conversions, NumbersToText) {
  // Every integer type has an unambiguous overload; char is signed everywhere.
  EXPECT_EQ(sToString(static_cast<char>(-56)) + sToString(static_cast<short>(-7)) + sToString(uint8_t{200}),
            "-56-7200");
  EXPECT_EQ(sToString(4000000000u) + sToString(-5L) + sToString(int64_t{-9000000000}), "4000000000-5-9000000000");
  EXPECT_EQ(sToString(1.0) + " " + sToString(0.1f) + " " + sToString(123.45678f), "1 0.1 123.4568");
  EXPECT_EQ(sToString(-0.0), "-0");  // "-0.000000": zeros, ".", and no "-" at the end
  const struct {
    double v;
    int decimals, trim, empty;
    const char* out;
  } cases[] = {{12.5, 3, 1, 0, "12.5"}, {3.0, 2, 1, 0, "3"},     {0.0001, 3, 1, 1, ""},   {-0.0001, 3, 1, 1, "-0"},
               {100.0, 0, 1, 0, "100"}, {100.0, 2, 0, 0, "100.00"}, {0.0, 2, 0, 1, "0.00"}, {2.5, -3, 1, 0, "2"}};
  for (const auto& c : cases) EXPECT_EQ(sToStdNumStr(c.v, c.decimals, c.trim, c.empty), c.out) << c.v;
  EXPECT_EQ(sToStdNumStr(0.1f, 10, 0, 0), "0.1000000015");  // the float's own value
  EXPECT_EQ(sToStdNumStr(5e-324, 2000, 1, 0).size(), 1076u);
  // Same digits as the C library's "%.*f", ties and huge values included.
  std::mt19937_64 rng(7);
  for (int i = 0; i < 3000; ++i) {
    const double v = std::ldexp(static_cast<double>(rng() >> 11) - 4503599627370496.0,
                                static_cast<int>(rng() % 140) - 100);
    const int d = static_cast<int>(rng() % 12);
    ASSERT_EQ(sToStdNumStr(v, d, 0, 0), CFixed(v, d)) << v;
  }
}

TEST(Conversions, TextToNumbers) {
  const struct {
    const char* text;
    int integer;
    uint32_t dword;
    double real;
  } cases[] = {{"", 0, 0, 0},           {"12abc", 12, 0x12abc, 12},      {" \t\n-42 7", -42, 0u - 0x42, -42},
               {"- 8", 0, 0, 0},        {" 0xFFffFF zz", 0, 0xFFFFFF, 0}, {"1ffffffff", 1, 0xFFFFFFFF, 1},
               {"-99999999999", -2147483647 - 1, 0xFFFFFFFF, -99999999999.0},
               {"  -2.5e2xyz", -2, 0u - 2, -250}, {".5", 0, 0, 0.5}, {"1e+", 1, 0x1e, 1}, {"inf", 0, 0, 0},
               {"1e-999", 1, 0x1e, 0},  {"0e99999999999999999999", 0, 0xFFFFFFFF, 0},
               {"0.000000000000000000000000000001e330", 0, 0, 1e300}};
  for (const auto& c : cases) {
    EXPECT_EQ(sToInteger(c.text), c.integer) << c.text;
    EXPECT_EQ(sToDWord(c.text), c.dword) << c.text;
    EXPECT_EQ(sToDouble(c.text), c.real) << c.text;
  }
  EXPECT_EQ(sToDouble("-1e999"), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(sToFloat("1e39"), std::numeric_limits<float>::infinity());
  // Every decimal text reads as strtod / strtof read it (rounded once).
  std::mt19937_64 rng(11);
  for (int i = 0; i < 3000; ++i) {
    std::string t = std::to_string(rng() % 100000000) + "." + std::to_string(rng() % 1000000000) + "e" +
                    std::to_string(static_cast<int>(rng() % 80) - 40);
    if (i % 2) t = "-" + t;
    ASSERT_EQ(sToDouble(t), std::strtod(t.c_str(), nullptr)) << t;
    ASSERT_EQ(sToFloat(t), std::strtof(t.c_str(), nullptr)) << t;
  }
  EXPECT_EQ(sStdNumber("1\t2.5\r\n\x7f\xb0\xa1"), "12.5\x7f\xb0\xa1");
}

TEST(Conversions, RoundingAndInt64) {
  const double in[] = {2.5, 2.51, -2.5, -2.49, 1e20, -1e20, std::nan("")};
  const int out[] = {2, 3, -3, -2, 2147483647, -2147483647 - 1, 0};
  for (size_t i = 0; i < sizeof in / sizeof in[0]; ++i) EXPECT_EQ(sToInteger(in[i]), out[i]) << in[i];
  for (int64_t v : {int64_t{9007199254740993}, std::numeric_limits<int64_t>::min()})
    EXPECT_EQ(sInt64ToDouble(v), static_cast<double>(v)) << v;
}

// Texts and numbers are the same when the host has a comma decimal point.
TEST(Conversions, IndependentOfHostLocale) {
  const std::string saved = std::setlocale(LC_NUMERIC, nullptr);
  if (!std::setlocale(LC_NUMERIC, "de_DE.UTF-8") && !std::setlocale(LC_NUMERIC, "de_DE.utf8"))
    GTEST_SKIP() << "no German locale is installed";
  char probe[16];
  std::snprintf(probe, sizeof probe, "%.1f", 2.5);
  const std::string text = sToString(2.5) + " " + sToStdNumStr(-1234.5678, 2, 0, 0);
  const double value = sToDouble("2.5");
  const float fvalue = sToFloat("0.75");
  std::setlocale(LC_NUMERIC, saved.c_str());
  EXPECT_EQ(std::string(probe), "2,5");  // the locale really is in force
  EXPECT_EQ(text, "2.5 -1234.57");
  EXPECT_EQ(value, 2.5);
  EXPECT_EQ(fvalue, 0.75f);
}

TEST(Angles, DegreesMinutesSeconds) {
  EXPECT_NEAR(sDMSToDegree(-30.3), -30.5, 1e-12);
  // The fraction below the second is scaled by 0.0001 one way, 1/3600 the other.
  EXPECT_NEAR(sDMSToDegree(10.30455), 10.0 + 0.5 + 45.0 / 3600 + 0.5 * 0.0001, 1e-9);
  EXPECT_NEAR(sDegreeToDMS(-(10.5 + 4.5 / 3600)), -(10.3004 + 0.5 / 3600), 1e-9);
}

TEST(Angles, NormalisersMatchRepeatedAddition) {
  EXPECT_EQ(sGetStdAngle180(-180.0), 180.0);
  EXPECT_EQ(sGetStdAngle180(540.0), 180.0);
  EXPECT_EQ(sGetStdAngle180(-190.0), 170.0);
  EXPECT_EQ(sGetStdAngle360(-1e-20), 0.0);  // -1e-20 + 360 rounds to 360
  EXPECT_FALSE(std::signbit(sGetStdAngle360(-720.0)));
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
  for (double v : {inf, -inf, std::nan("")}) EXPECT_TRUE(std::isnan(sGetStdAngle180(v) + sGetStdRadianPI2(v)));
  for (double v : {1e300, -1.7e308, 1e18, -3e19, 72057594037927936.0 * 3}) {
    const double a = sGetStdAngle360(v), b = sGetStdAngle180(v), c = sGetStdRadianPI2(v);
    EXPECT_TRUE(a >= 0 && a < 360 && b > -180 && b <= 180 && c >= 0 && c < 6.283185307) << v;
  }
  EXPECT_EQ(sGetStdAngle360(1e300), std::fmod(1e300, 360.0));
}

TEST(Conversions, ChainageAndSnapping) {
  const struct {
    int value;
    const char *high, *low;
  } cases[] = {{1234567, "12", "34.567"}, {5000, "  ", "05"}, {312000, "03", "12"}, {-312000, "-3", "-12"}};
  for (const auto& c : cases) {
    String high, low;
    sGetKMHighLow2Str(c.value, high, low);
    EXPECT_EQ(high + "|" + low, std::string(c.high) + "|" + c.low) << c.value;
  }
  CDblPoint ref(1, 1), p(4, 3), tie(3, 3);
  sToHVPoint(ref, p);
  sToHVPoint(ref, tie);  // equal distances snap horizontally
  EXPECT_EQ((p == CDblPoint(4, 1)) + (tie == CDblPoint(3, 1)), 2);
  CPoint fref(2147483647, 0), far(-2147483647 - 1, 2147483647);
  sToHVPoint(fref, far);  // dx = 2^32 - 1 does not wrap
  EXPECT_EQ(far, CPoint(-2147483647 - 1, 0));
}

TEST(Conversions, CommonPrefixes) {
  EXPECT_EQ(sLeftFindSameCnt("abCD", "ABcx"), 3);
  EXPECT_EQ(sLeftGetSameStr("wEll-1", "WELL-2"), "WELL-");
  // A double-byte character counts whole; its trail byte is not case-folded.
  EXPECT_EQ(sLeftFindSameCnt("\x81" "a1", "\x81" "A1"), 0);
  EXPECT_EQ(sLeftGetSameStr("\xb0" "a" "b", "\xb0" "a" "B"), "\xb0" "a" "B");
  const struct {
    const char *a, *b, *seps;
    int one_way, out;
  } cases[] = {{"ab", "ab-c", "-", 1, 1}, {"ab-c", "ab", "-", 1, 0}, {"ab-c", "ab", "-", 0, 1},
               {"ab", "abc", "-", 0, 0},  {"ab", "ABC", "", 1, 1},   {"AB", "ab", "-", 1, 1}};
  for (const auto& c : cases) EXPECT_EQ(sLeftCmpStr(c.a, c.b, c.seps, c.one_way), c.out) << c.a << " " << c.b;
}

TEST(Conversions, WellNames) {
  const struct {
    const char* well;
    int part;
    const char* seps;
    int count;
    const char* id;
  } cases[] = {{"Wen 12-5X", 0, nullptr, 2, "Wen"}, {"Wen 12-5X", 2, "", 2, "5X"},
               {"Wen 12-5X", -1, nullptr, 2, "12-5X"}, {"Wen 12-5X", 3, nullptr, 2, ""},
               {"W3/7/", 3, "/", 3, ""},  // empty pieces are kept
               {"Guan", 0, nullptr, 0, "Guan"},
               {"\xe5\xa7" "\xb1\xb1" "3-12", 0, nullptr, 2, "\xe5\xa7" "\xb1\xb1"}};  // GBK name
  for (const auto& c : cases) {
    String id = "old";
    EXPECT_EQ(sGetWellID(c.well, c.part, c.seps, id), c.count) << c.well << " " << c.part;
    EXPECT_EQ(id, c.id) << c.well << " " << c.part;
  }
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
  EXPECT_EQ(kinds[2], kDrawTextDown);
  EXPECT_EQ(pieces.back(), "e\\x");
}
