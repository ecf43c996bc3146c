// Variants to Strings and numbers.
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>

#include "mapcfg/utils.h"

namespace mapcfg {

namespace {

// The first sizeof(T) bytes of the variant's value, whatever member wrote
// them (VT_I1 and VT_UI1 are read through the 16-bit field).
template <typename T>
T Field(const VARIANT& var) {
  T out;
  std::memcpy(&out, reinterpret_cast<const unsigned char*>(&var) + offsetof(VARIANT, decVal), sizeof out);
  return out;
}

// Whole days of variant dates the calendar conversion accepts: 100-01-01 to
// 9999-12-31.
constexpr double kFirstDay = -657434.0;
constexpr double kLastDay = 2958465.0;
// Days from 1899-12-30 to 1970-01-01.
constexpr long long kDays1970 = 25569;

struct DateParts {
  int year, month, day, hour, minute, second;
};

// Calendar date and time of a variant date, rounded to the second.
bool SplitDate(double date, DateParts& p) {
  const double whole = std::trunc(date);
  if (!(whole >= kFirstDay && whole <= kLastDay)) return false;  // NaN too
  long long days = static_cast<long long>(whole);
  long long secs = std::llround(std::fabs(date - whole) * 86400.0);
  if (secs >= 86400) {  // rounded up to the next midnight
    secs -= 86400;
    ++days;
  }
  p.hour = static_cast<int>(secs / 3600);
  p.minute = static_cast<int>(secs / 60 % 60);
  p.second = static_cast<int>(secs % 60);
  // Proleptic Gregorian date of a day count, in 400-year eras from 0000-03-01.
  const long long z = days - kDays1970 + 719468;
  const long long era = (z >= 0 ? z : z - 146096) / 146097;
  const long long doe = z - era * 146097;
  const long long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const long long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const long long mp = (5 * doy + 2) / 153;
  p.day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  p.month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  p.year = static_cast<int>(yoe + era * 400 + (p.month <= 2));
  return true;
}

String Digits(int value, int width) {
  String s = sToString(value);
  if (s.size() < static_cast<size_t>(width)) s.insert(0, static_cast<size_t>(width) - s.size(), '0');
  return s;
}

String DateText(double date) {
  DateParts p;
  if (!SplitDate(date, p)) return String();
  String s = Digits(p.year, 4) + "-" + Digits(p.month, 2) + "-" + Digits(p.day, 2);
  if (p.hour || p.minute || p.second)
    s += " " + Digits(p.hour, 2) + ":" + Digits(p.minute, 2) + ":" + Digits(p.second, 2);
  return s;
}

// The currency amount in decimal, exactly, up to 4 decimals.
String CurrencyText(const CY& cy) {
  const uint64_t bits = (static_cast<uint64_t>(static_cast<uint32_t>(cy.Hi)) << 32) | cy.Lo;
  const bool negative = cy.Hi < 0;
  const uint64_t magnitude = negative ? 0 - bits : bits;
  String s = negative ? "-" : "";
  s += sToString(static_cast<unsigned long long>(magnitude / 10000));
  String frac = sToString(static_cast<unsigned>(magnitude % 10000));
  frac.insert(0, 4 - frac.size(), '0');
  while (!frac.empty() && frac.back() == '0') frac.pop_back();
  if (!frac.empty()) s += "." + frac;
  return s;
}

// UTF-16 text to 8-bit: ASCII stays, anything else becomes "?".
String NarrowText(const char16_t* text) {
  String out;
  if (!text) return out;
  for (; *text; ++text) {
    const char16_t c = *text;
    if (c < 0x80) {
      out += static_cast<char>(c);
      continue;
    }
    out += '?';
    if (c >= 0xD800 && c <= 0xDBFF && text[1] >= 0xDC00 && text[1] <= 0xDFFF) ++text;  // one character
  }
  return out;
}

double DecimalValue(const DECIMAL& dec) {
  double v = sInt64ToDouble(static_cast<int64_t>(dec.Lo64));
  if (dec.sign == 128) v = -v;
  return v / std::pow(10.0, dec.scale);
}

// A variant as the numeric conversions see it.
struct Number {
  enum Kind { kNone, kExact, kRounded, kText } kind = kNone;
  double real = 0;       // what sVar2Dbl gives (kExact, kRounded)
  int32_t whole = 0;     // what sVar2Long and sVar2Int give (kExact)
  String text;           // the text to scan (kText)
};

Number Exact(double real, int32_t whole) {
  Number n;
  n.kind = Number::kExact;
  n.real = real;
  n.whole = whole;
  return n;
}

Number Rounded(double real) {
  Number n;
  n.kind = Number::kRounded;
  n.real = real;
  return n;
}

Number ToNumber(const VARIANT& var) {
  switch (var.vt) {
    case VT_I2:
    case VT_I1: {
      const int16_t v = Field<int16_t>(var);
      return Exact(v, v);
    }
    case VT_UI1:
    case VT_UI2: {
      const uint16_t v = Field<uint16_t>(var);
      return Exact(v, v);
    }
    case VT_I4: {
      const int32_t v = Field<int32_t>(var);
      return Exact(v, v);
    }
    case VT_UI4: {
      const uint32_t v = Field<uint32_t>(var);
      return Exact(v, static_cast<int32_t>(v));
    }
    case VT_R4:
      return Rounded(Field<float>(var));
    case VT_R8:
      return Rounded(Field<double>(var));
    case VT_CY: {
      const CY cy = Field<CY>(var);
      return Exact(cy.Lo * 0.0001 + cy.Hi, cy.Hi);
    }
    case VT_DATE: {
      DateParts p;
      if (!SplitDate(Field<double>(var), p)) return Exact(0, 0);
      const double packed = p.year * 10000.0 + p.month * 100 + p.day + p.hour * 0.01 + p.minute * 0.0001 +
                            p.second * 0.000001;
      return Exact(packed, (p.year * 100 + p.month) * 100 + p.day);
    }
    case VT_BSTR: {
      Number n;
      n.kind = Number::kText;
      n.text = sStdNumber(NarrowText(Field<const char16_t*>(var)));
      return n;
    }
    case VT_BOOL: {
      const bool on = Field<int16_t>(var) != 0;
      return Exact(on ? 1.0 : 0.0, on ? 1 : 0);
    }
    case VT_DECIMAL:
      return Rounded(DecimalValue(Field<DECIMAL>(var)));
    default:
      return Number();
  }
}

// The double as a float; beyond the float range, an infinity.
float Narrow(double v) {
  if (v > std::numeric_limits<float>::max()) return std::numeric_limits<float>::infinity();
  if (v < -std::numeric_limits<float>::max()) return -std::numeric_limits<float>::infinity();
  return static_cast<float>(v);
}

// trunc(v + 0.5), kept within 32 bits.
int32_t TruncHalfUp(double v) {
  const double r = std::trunc(v + 0.5);
  if (std::isnan(r)) return 0;
  if (r >= 2147483647.0) return 2147483647;
  if (r <= -2147483648.0) return -2147483647 - 1;
  return static_cast<int32_t>(r);
}

}  // namespace

void sVar2Str(const VARIANT& var, String& out) {
  switch (var.vt) {
    case VT_I2:
    case VT_I1:
      out = sToString(static_cast<int>(Field<int16_t>(var)));
      return;
    case VT_UI1:
    case VT_UI2:
      out = sToString(static_cast<int>(Field<uint16_t>(var)));
      return;
    case VT_I4:
      out = sToString(Field<int32_t>(var));
      return;
    case VT_UI4:
      out = sToString(Field<uint32_t>(var));
      return;
    case VT_R4:
      out = sToString(Field<float>(var));
      return;
    case VT_R8:
      out = sToString(Field<double>(var));
      return;
    case VT_CY:
      out = CurrencyText(Field<CY>(var));
      return;
    case VT_DATE:
      out = DateText(Field<double>(var));
      return;
    case VT_BSTR:
      out = NarrowText(Field<const char16_t*>(var));
      return;
    case VT_BOOL:
      out = Field<int16_t>(var) != 0 ? "1" : "0";
      return;
    case VT_DECIMAL:
      out = sToString(DecimalValue(Field<DECIMAL>(var)));
      return;
    default:
      out.clear();
  }
}

void sVar2Dbl(const VARIANT& var, double& out) {
  const Number n = ToNumber(var);
  out = n.kind == Number::kText ? sToDouble(n.text) : n.real;
}

void sVar2Flt(const VARIANT& var, float& out) {
  const Number n = ToNumber(var);
  out = n.kind == Number::kText ? sToFloat(n.text) : Narrow(n.real);
}

void sVar2Long(const VARIANT& var, int32_t& out) {
  const Number n = ToNumber(var);
  if (n.kind == Number::kText)
    out = sToInteger(n.text);
  else if (n.kind == Number::kRounded)
    out = TruncHalfUp(n.real);
  else
    out = n.whole;
}

void sVar2Int(const VARIANT& var, int& out) {
  const Number n = ToNumber(var);
  if (n.kind == Number::kText)
    out = sToInteger(n.text);
  else if (n.kind == Number::kRounded)
    out = sToInteger(n.real);
  else
    out = n.whole;
}

void sVar2Bool(const VARIANT& var, bool& out) {
  int v = 0;
  sVar2Int(var, v);
  out = v != 0;
}

}  // namespace mapcfg
