// Numbers to script text and script text to numbers, independent of the
// host's locale.
#include <charconv>
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <system_error>

#include "mapcfg/utils.h"

namespace mapcfg {

namespace {

// Most decimals sToStdNumStr writes: a double has no non-zero digit after
// the 1074th decimal.
constexpr int kMaxDecimals = 1074;

// Blanks skipped by the C scan functions in the C locale.
bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

int HexValue(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

const char* SkipBlanks(const char* p) {
  while (IsBlank(*p)) ++p;
  return p;
}

// Reads an optional sign; returns true for "-".
bool ReadSign(const char*& p) {
  if (*p != '+' && *p != '-') return false;
  return *p++ == '-';
}

template <typename T>
String IntegerText(T value) {
  char buf[24];
  const auto res = std::to_chars(buf, buf + sizeof buf, value);
  return String(buf, res.ptr);
}

// The text of "%.<decimals>f" in the C locale.
String FixedText(double value, int decimals) {
  if (decimals < 0) decimals = 0;
  if (decimals > kMaxDecimals) decimals = kMaxDecimals;
  String out(static_cast<size_t>(decimals) + 330, '\0');
  const auto res = std::to_chars(&out[0], &out[0] + out.size(), value, std::chars_format::fixed, decimals);
  out.resize(static_cast<size_t>(res.ptr - out.data()));
  return out;
}

void TrimRight(String& s, char c) {
  size_t n = s.size();
  while (n > 0 && s[n - 1] == c) --n;
  s.resize(n);
}

// Decimal floating-point scan of `text` into T ("%f" for float, "%lf" for
// double): the longest decimal number after leading blanks, 0 when none.
template <typename T>
T ScanReal(const char* text) {
  if (!text) return T(0);
  const char* p = SkipBlanks(text);
  const bool negative = ReadSign(p);
  const char* const start = p;
  // Decimal exponent of the leading digit, to tell overflow from underflow.
  long long magnitude = 0;
  bool seen_digit = false;
  bool nonzero = false;
  for (; IsDigit(*p); ++p) {
    seen_digit = true;
    if (*p != '0') nonzero = true;
    if (nonzero && magnitude < 100000) ++magnitude;
  }
  if (*p == '.') {
    ++p;
    for (; IsDigit(*p); ++p) {
      seen_digit = true;
      if (*p != '0') nonzero = true;
      if (!nonzero && magnitude > -100000) --magnitude;
    }
  }
  if (!seen_digit) return T(0);
  if (*p == 'e' || *p == 'E') {
    const char* q = p + 1;
    const bool exp_negative = ReadSign(q);
    if (IsDigit(*q)) {
      long long exp = 0;
      for (; IsDigit(*q); ++q)
        if (exp < 100000) exp = exp * 10 + (*q - '0');
      magnitude += exp_negative ? -exp : exp;
      p = q;
    }
  }
  if (!nonzero) return negative ? -T(0) : T(0);
  T value = T(0);
  const auto res = std::from_chars(start, p, value, std::chars_format::general);
  if (res.ec == std::errc::result_out_of_range)
    value = magnitude > 0 ? std::numeric_limits<T>::infinity() : T(0);
  else if (res.ec != std::errc())
    value = T(0);
  return negative ? -value : value;
}

int ScanInt(const char* text) {
  if (!text) return 0;
  const char* p = SkipBlanks(text);
  const bool negative = ReadSign(p);
  long long v = 0;
  for (; IsDigit(*p); ++p)
    if (v <= INT_MAX) v = v * 10 + (*p - '0');
  if (negative) v = -v;
  if (v > INT_MAX) return INT_MAX;
  if (v < INT_MIN) return INT_MIN;
  return static_cast<int>(v);
}

uint32_t ScanHex(const char* text) {
  if (!text) return 0;
  const char* p = SkipBlanks(text);
  const bool negative = ReadSign(p);
  if (p[0] == '0' && (p[1] == 'x' || p[1] == 'X') && HexValue(p[2]) >= 0) p += 2;
  uint64_t v = 0;
  bool overflow = false;
  for (int d; (d = HexValue(*p)) >= 0; ++p) {
    v = v * 16 + static_cast<uint64_t>(d);
    if (v > 0xFFFFFFFFu) {
      overflow = true;
      v = 0xFFFFFFFFu;
    }
  }
  if (overflow) return 0xFFFFFFFFu;
  const uint32_t u = static_cast<uint32_t>(v);
  return negative ? 0u - u : u;
}

}  // namespace

String sStdNumber(const char* text) {
  String out;
  if (!text) return out;
  for (; *text; ++text)
    if (static_cast<unsigned char>(*text) > 31) out += *text;
  return out;
}

String sStdNumber(const String& text) { return sStdNumber(text.c_str()); }

String sToString(char value) { return IntegerText(static_cast<int>(static_cast<signed char>(value))); }
String sToString(int value) { return IntegerText(value); }
String sToString(unsigned value) { return IntegerText(value); }
String sToString(long value) { return IntegerText(value); }
String sToString(unsigned long value) { return IntegerText(value); }
String sToString(long long value) { return IntegerText(value); }
String sToString(unsigned long long value) { return IntegerText(value); }
String sToString(float value) { return sToStdNumStr(value, 4, 1, 0); }
String sToString(double value) { return sToStdNumStr(value, 6, 1, 0); }

String sToStdNumStr(double value, int decimals, int trim, int empty_if_zero) {
  String s = FixedText(value, decimals);
  if (trim && s.find('.') != String::npos) {
    TrimRight(s, '0');
    TrimRight(s, '.');
    TrimRight(s, '-');
  }
  if (empty_if_zero && s == "0") s.clear();
  return s;
}

String sToStdNumStr(float value, int decimals, int trim, int empty_if_zero) {
  return sToStdNumStr(static_cast<double>(value), decimals, trim, empty_if_zero);
}

int sToInteger(const char* text) { return ScanInt(text); }
int sToInteger(const String& text) { return ScanInt(text.c_str()); }
uint32_t sToDWord(const char* text) { return ScanHex(text); }
uint32_t sToDWord(const String& text) { return ScanHex(text.c_str()); }
float sToFloat(const char* text) { return ScanReal<float>(text); }
float sToFloat(const String& text) { return ScanReal<float>(text.c_str()); }
double sToDouble(const char* text) { return ScanReal<double>(text); }
double sToDouble(const String& text) { return ScanReal<double>(text.c_str()); }

int sToInteger(double value) {
  const double r = value >= 0 ? std::trunc(value + 0.49) : std::trunc(value - 0.5);
  if (std::isnan(r)) return 0;
  if (r >= static_cast<double>(INT_MAX)) return INT_MAX;
  if (r <= static_cast<double>(INT_MIN)) return INT_MIN;
  return static_cast<int>(r);
}

double sInt64ToDouble(int64_t value) { return sToDouble(IntegerText(value)); }

}  // namespace mapcfg
