// Number and text conversions, angles, snapping, drawing text, text order
// and variants; single calls with their results are listed in
// data/conversions.txt.
#include <gtest/gtest.h>
#include <mapcfg/mapcfg.h>


#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace mapcfg;

namespace {

using Row = std::vector<std::string>;

// The tab-separated fields of a line of the table, with the escapes \t, \n,
// \\ and \xNN resolved; a field "" is the empty text.
Row Fields(const std::string& line) {
  Row row(1);
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '\t') {
      row.emplace_back();
    } else if (line[i] != '\\' || i + 1 == line.size()) {
      row.back() += line[i];
    } else if (line[++i] == 'x') {
      row.back() += static_cast<char>(std::stoi(line.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      row.back() += line[i] == 't' ? '\t' : line[i] == 'n' ? '\n' : line[i];
    }
  }
  for (auto& field : row)
    if (field == "\"\"") field.clear();
  return row;
}

// The C library's printf, into a String; the tests run in the C locale.
template <typename... Args>
std::string Format(const char* format, Args... args) {
  char buf[256];
  std::snprintf(buf, sizeof buf, format, args...);
  return buf;
}

double D(const std::string& text) { return std::strtod(text.c_str(), nullptr); }
int I(const std::string& text) { return std::atoi(text.c_str()); }

// The result of one of the variant conversions.
template <typename T>
T Out(void (*convert)(const VARIANT&, T&), const VARIANT& var) {
  T out{};
  convert(var, out);
  return out;
}

// The variant of a row: the type tag, then the value. An integer fills the
// first 8 bytes of the value; VT_DECIMAL takes scale, sign, Hi32 and Lo64;
// VT_BSTR ASCII text, or no text for "(null)".
VARIANT MakeVariant(const Row& r) {
  static std::u16string text;
  VARIANT v;
  v.vt = static_cast<uint16_t>(I(r[1]));
  const long long n = std::strtoll(r[2].c_str(), nullptr, 10);
  std::memcpy(&v.decVal, &n, sizeof n);
  if (v.vt == VT_R4) v.fltVal = std::strtof(r[2].c_str(), nullptr);
  if (v.vt == VT_R8 || v.vt == VT_DATE) v.dblVal = D(r[2]);
  if (v.vt == VT_DECIMAL)
    v.decVal = DECIMAL{0, static_cast<uint8_t>(I(r[2])), static_cast<uint8_t>(I(r[3])), static_cast<uint32_t>(I(r[4])),
                       std::stoull(r[5], nullptr, 0)};
  text.assign(r[2].begin(), r[2].end());
  if (v.vt == VT_BSTR) v.bstrVal = r[2] == "(null)" ? nullptr : text.c_str();
  return v;
}

// The results of the call a row names, as text; its arguments are the fields
// r[1] .. r[size - 2].
std::string Call(const Row& r) {
  const std::string& f = r[0];
  if (f == "sToStdNumStr") return sToStdNumStr(D(r[1]), I(r[2]), I(r[3]), I(r[4]));
  if (f == "numbers") return Format("%d|%x|%.17g", sToInteger(r[1]), sToDWord(r[1]), sToDouble(r[1]));
  if (f == "sToInteger") return sToString(sToInteger(D(r[1])));
  if (f == "sDMSToDegree") return Format("%.12g", sDMSToDegree(D(r[1])));
  if (f == "sDegreeToDMS") return Format("%.12g", sDegreeToDMS(D(r[1])));
  if (f == "sCmpStrByAccess") return sToString(sCmpStrByAccess(r[1], r[2]));
  if (f == "prefix")
    return sToString(sLeftFindSameCnt(r[1], r[2])) + "|" + sLeftGetSameStr(r[1].c_str(), r[2].c_str()) + "|" +
           sToString(sLeftCmpStr(r[1], r[2], r[3], I(r[4])));
  String text = r[1], more;
  if (f == "sGetKMHighLow2Str") {
    sGetKMHighLow2Str(I(r[1]), text, more);
    return text + "|" + more;
  }
  if (f == "sGetWellID") {
    more = "old";
    const int count = sGetWellID(r[1], I(r[2]), r[3] == "(null)" ? nullptr : r[3].c_str(), more);
    return sToString(count) + "|" + more;
  }
  if (f == "sToHVPoint") {
    CDblPoint reference(D(r[1]), D(r[2])), point(D(r[3]), D(r[4]));
    CPoint ireference(I(r[1]), I(r[2])), ipoint(I(r[3]), I(r[4]));
    sToHVPoint(reference, point);
    sToHVPoint(ireference, ipoint);
    return Format("%.10g %.10g|%d %d", point.x, point.y, ipoint.x, ipoint.y);
  }
  if (f == "sToUpDownMarkStr") {
    sToUpDownMarkStr(text, r[2].c_str(), r[3]);
    return text;
  }
  if (f == "sDrawFmtText_DiviSubStr") {
    StringArray pieces;
    std::vector<char> kinds;
    std::string out = sToString(sDrawFmtText_DiviSubStr(text, pieces, kinds));
    for (size_t i = 0; i < pieces.size(); ++i) out += "|" + pieces[i] + "/" + sToString(kinds[i]);
    return out + "|" + text;
  }
  if (f != "VARIANT") return "no such function " + f;
  const VARIANT v = MakeVariant(r);
  return Format("%s|%.15g|%.7g|%d|%d|%d", Out(sVar2Str, v).c_str(), Out(sVar2Dbl, v), Out(sVar2Flt, v),
                Out(sVar2Long, v), Out(sVar2Int, v), Out(sVar2Bool, v));
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

TEST(Conversions, TableOfCalls) {
  std::ifstream in(MAPCFG_TEST_DATA "/conversions.txt");
  int rows = 0;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    SCOPED_TRACE(line);
    const Row row = Fields(line);
    ASSERT_GE(row.size(), 3u);
    EXPECT_EQ(Call(row), row.back());
    ++rows;
  }
  EXPECT_GT(rows, 100);
}

TEST(Conversions, NumbersAndTextAsTheCLibrary) {
  // Every integer type has an unambiguous overload; char is signed everywhere.
  EXPECT_EQ(sToString(static_cast<char>(-56)) + sToString(uint8_t{200}) + sToString(int64_t{-9000000000}),
            "-56200-9000000000");
  EXPECT_EQ(sToString(1.0) + " " + sToString(0.1f) + " " + sToString(123.45678f), "1 0.1 123.4568");
  EXPECT_EQ(sToStdNumStr(5e-324, 2000, 1, 0).size(), 1076u);  // no more than 1074 decimals
  EXPECT_EQ(sToFloat("1e39"), std::numeric_limits<float>::infinity());
  EXPECT_EQ(sStdNumber("1\t2.5\r\n\x7f\xb0\xa1"), "12.5\x7f\xb0\xa1");
  EXPECT_EQ(sInt64ToDouble(std::numeric_limits<int64_t>::min()), -9223372036854775808.0);
  // Numbers are written as "%.*f" writes them (ties and huge values
  // included), decimal texts read as strtod and strtof read them (rounded
  // once), and a 64-bit integer becomes the nearest double.
  std::mt19937_64 rng(7);
  for (int i = 0; i < 3000; ++i) {
    const double v =
        std::ldexp(static_cast<double>(rng() >> 11) - 4503599627370496.0, static_cast<int>(rng() % 140) - 100);
    const int d = static_cast<int>(rng() % 12);
    ASSERT_EQ(sToStdNumStr(v, d, 0, 0), Format("%.*f", d, v)) << v;
    const std::string t = (i % 2 ? "-" : "") + std::to_string(rng() % 100000000) + "." +
                          std::to_string(rng() % 1000000000) + "e" + std::to_string(static_cast<int>(rng() % 80) - 40);
    ASSERT_EQ(sToDouble(t), std::strtod(t.c_str(), nullptr)) << t;
    ASSERT_EQ(sToFloat(t), std::strtof(t.c_str(), nullptr)) << t;
    const auto n = static_cast<int64_t>(rng());
    ASSERT_EQ(sInt64ToDouble(n), static_cast<double>(n)) << n;
  }
}

// Texts and numbers are the same when the host has taken a locale with a
// comma decimal point, as desktop hosts do with setlocale(LC_ALL, "").
TEST(Conversions, IndependentOfHostLocale) {
  const std::string saved = std::setlocale(LC_ALL, nullptr);
  // POSIX names, then the Windows ones.
  if (!std::setlocale(LC_ALL, "de_DE.UTF-8") && !std::setlocale(LC_ALL, "de_DE.utf8") &&
      !std::setlocale(LC_ALL, "de-DE") && !std::setlocale(LC_ALL, "German_Germany.1252"))
    GTEST_SKIP() << "no German locale is installed";
  // The first number shows that the locale really is in force.
  const std::string text = Format("%.1f", 2.5) + " " + sToString(2.5) + " " + sToStdNumStr(-1234.5678, 2, 0, 0) +
                           " " + mapcfg::sGetVersionStr(0x0102A0FF);
  const double sum = sToDouble("2.5") + sToFloat("0.75");
  mapcfg::CFFArchive a;
  const float floats[] = {0.25f, -3.5f};
  const double doubles[] = {1e-7, 12345.6789};
  a.PutFloat(1.5f);
  a.PutDouble(-2.25);
  a.PutFloat(floats, 2);
  a.PutDouble(doubles, 2);
  a.Rewind();
  const std::string listing = a.TestData();
  std::setlocale(LC_ALL, saved.c_str());
  EXPECT_EQ(text, "2,5 2.5 -1234.57 1.2.a0.ff");
  EXPECT_EQ(sum, 3.25);
  EXPECT_EQ(listing,
            "TYPE_F4\r\n    1.500000\r\nTYPE_F8\r\n    -2.250000\r\n"
            "TYPE_F4_ARRAY\r\n    0.250000\r\n    -3.500000\r\n"
            "TYPE_F8_ARRAY\r\n    0.000000\r\n    12345.678900\r\n");
}

TEST(Angles, MatchRepeatedAdditionInBoundedTime) {
  EXPECT_FALSE(std::signbit(sGetStdAngle360(-720.0)));
  // Far from 0 the steps round at every addition; the jumps must land where
  // single steps would.
  std::mt19937_64 rng(3);
  std::uniform_real_distribution<double> small(-2000.0, 2000.0), large(-1e6, 1e6);
  std::vector<double> values{180.0, -180.0, 540.0, -1e-20};  // -1e-20 + 360 rounds to 360
  for (int i = 0; i < 420; ++i) values.push_back(i < 400 ? small(rng) : large(rng));
  for (const double a : values) {
    ASSERT_EQ(sGetStdAngle360(a), Loop360(a, 360.0)) << a;
    ASSERT_EQ(sGetStdAngle360(a * 100), Loop360(a * 100, 360.0)) << a;
    ASSERT_EQ(sGetStdAngle180(a), Loop180(a)) << a;
    ASSERT_EQ(sGetStdRadianPI2(a), Loop360(a, 6.283185307)) << a;
  }
  // Values where the plain loop never ends still come back at once.
  const double inf = std::numeric_limits<double>::infinity();
  for (double v : {inf, -inf, std::nan(""), 1e300, -1.7e308, 1e18, -3e19, 72057594037927936.0 * 3}) {
    const double a = sGetStdAngle360(v), b = sGetStdAngle180(v), c = sGetStdRadianPI2(v);
    EXPECT_TRUE(std::isfinite(v) ? a >= 0 && a < 360 && b > -180 && b <= 180 && c >= 0 && c < 6.283185307
                                 : std::isnan(a) && std::isnan(b) && std::isnan(c))
        << v;
  }
  EXPECT_EQ(sGetStdAngle360(1e300), std::fmod(1e300, 360.0));
}
