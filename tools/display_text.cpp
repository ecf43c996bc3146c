#include "display_text.h"

#include <iconv.h>

#include <charconv>
#include <cmath>
#include <cstdio>

namespace mapcfg_tool {

namespace {

// One converter per direction for the life of the process.
class Converter {
 public:
  Converter(const char* to, const char* from) : cd_(iconv_open(to, from)) {}
  ~Converter() {
    if (ok()) iconv_close(cd_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  bool ok() const { return cd_ != reinterpret_cast<iconv_t>(-1); }
  // Converts all of `in`, appending to *out; false when any of it cannot be
  // converted.
  bool Convert(const char* in, size_t n, std::string* out) {
    if (!ok()) return false;
    iconv(cd_, nullptr, nullptr, nullptr, nullptr);
    char* pin = const_cast<char*>(in);
    size_t nin = n;
    while (nin > 0) {
      char buf[256];
      char* pout = buf;
      size_t nout = sizeof buf;
      const size_t r = iconv(cd_, &pin, &nin, &pout, &nout);
      out->append(buf, static_cast<size_t>(pout - buf));
      if (r == static_cast<size_t>(-1) && pout == buf) return false;
    }
    return true;
  }

 private:
  iconv_t cd_;
};

Converter& FromGbk() {
  static Converter c("UTF-8", "GBK");
  return c;
}

// One unit of a text: an ASCII byte, a character of the text's encoding (its
// bytes and their UTF-8 form) or a byte that is neither.
struct Unit {
  enum Kind { kAscii, kChar, kBad } kind;
  size_t at;         // index of its first byte
  size_t size;       // bytes it takes
  std::string utf8;  // kChar only
};

// Length of the UTF-8 sequence at bytes[i], or 0 when none starts there.
size_t Utf8Length(const std::string& bytes, size_t i) {
  const unsigned char c = static_cast<unsigned char>(bytes[i]);
  size_t n = 0;
  if (c >= 0xC2 && c <= 0xDF) n = 2;
  else if (c >= 0xE0 && c <= 0xEF) n = 3;
  else if (c >= 0xF0 && c <= 0xF4) n = 4;
  if (n == 0 || i + n > bytes.size()) return 0;
  for (size_t k = 1; k < n; ++k)
    if ((static_cast<unsigned char>(bytes[i + k]) & 0xC0) != 0x80) return 0;
  return n;
}

// Walks `bytes` unit by unit, reading them as GBK or as UTF-8.
template <class F>
void ForEachUnit(const std::string& bytes, bool utf8, F&& f) {
  size_t i = 0;
  while (i < bytes.size()) {
    Unit u{Unit::kAscii, i, 1, {}};
    if (static_cast<unsigned char>(bytes[i]) > 0x7F) {
      u.kind = Unit::kBad;
      if (utf8) {
        if (const size_t n = Utf8Length(bytes, i)) u = Unit{Unit::kChar, i, n, bytes.substr(i, n)};
      } else if (i + 1 < bytes.size() && FromGbk().Convert(bytes.data() + i, 2, &u.utf8)) {
        // One double-byte character at a time, so a bad pair costs one byte.
        u.kind = Unit::kChar;
        u.size = 2;
      }
    }
    f(u);
    i += u.size;
  }
}

void AppendHex(std::string& out, const char* format, unsigned char c) {
  char buf[8];
  std::snprintf(buf, sizeof buf, format, c);
  out += buf;
}

// `bytes` for a terminal or (json) as the inside of a JSON string.
std::string Escaped(const std::string& bytes, bool utf8, bool json) {
  std::string out;
  ForEachUnit(bytes, utf8, [&](const Unit& u) {
    const unsigned char c = static_cast<unsigned char>(bytes[u.at]);
    if (u.kind == Unit::kChar) {
      out += u.utf8;
    } else if (u.kind == Unit::kBad) {
      AppendHex(out, json ? "\\\\x%02X" : "\\x%02X", c);
    } else if (c == '\t' || c == '\n' || c == '\r') {
      out += c == '\t' ? "\\t" : c == '\n' ? "\\n" : "\\r";
    } else if (c < 0x20 || c == 0x7F) {
      AppendHex(out, json ? "\\u%04X" : "\\x%02X", c);
    } else if (json && c == '"') {
      out += "\\\"";
    } else if (json && c == '\\') {
      // A backslash that could be read as the start of \xNN is one itself.
      out += u.at + 1 < bytes.size() && bytes[u.at + 1] == 'x' ? "\\\\x5C" : "\\\\";
    } else {
      out += static_cast<char>(c);
    }
  });
  return out;
}

std::string EscapedName(const std::string& name, bool json) {
  std::string out;
  size_t start = 0;
  for (;;) {
    const size_t slash = name.find('/', start);
    const std::string part = name.substr(start, slash == std::string::npos ? std::string::npos : slash - start);
    out += Escaped(part, LooksLikeUtf8(part), json);
    if (slash == std::string::npos) return out;
    out += '/';
    start = slash + 1;
  }
}

template <class T>
std::string Shortest(T value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  char buf[64];
  const auto r = std::to_chars(buf, buf + sizeof buf, value);
  return std::string(buf, r.ptr);
}

}  // namespace

std::string ToDisplay(const std::string& bytes, bool raw) { return raw ? bytes : Escaped(bytes, false, false); }

std::string ToJson(const std::string& bytes) { return "\"" + Escaped(bytes, false, true) + "\""; }

std::string NameToDisplay(const std::string& name) { return EscapedName(name, false); }

std::string NameToJson(const std::string& name) { return "\"" + EscapedName(name, true) + "\""; }

std::string JsonQuote(const std::string& text) {
  std::string out = "\"";
  for (char c : text) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  return out + "\"";
}

std::string NumberText(double value) { return Shortest(value); }
std::string NumberText(float value) { return Shortest(value); }

bool LooksLikeUtf8(const std::string& bytes) {
  bool high = false;
  for (size_t i = 0; i < bytes.size();) {
    if (static_cast<unsigned char>(bytes[i]) < 0x80) {
      ++i;
      continue;
    }
    const size_t n = Utf8Length(bytes, i);
    if (n == 0) return false;
    high = true;
    i += n;
  }
  return high;
}

bool Utf8ToGbk(const std::string& utf8, std::string* gbk) {
  static Converter to_gbk("GBK", "UTF-8");
  gbk->clear();
  return to_gbk.Convert(utf8.data(), utf8.size(), gbk);
}

size_t FirstNonGbk(const std::string& bytes) {
  size_t bad = std::string::npos;
  ForEachUnit(bytes, false, [&](const Unit& u) {
    if (u.kind == Unit::kBad && bad == std::string::npos) bad = u.at;
  });
  return bad;
}

bool EndsInGbkPair(const std::string& bytes) {
  bool pair = false;
  ForEachUnit(bytes, false, [&](const Unit& u) { pair = u.kind == Unit::kChar && u.at + 2 == bytes.size(); });
  return pair;
}

}  // namespace mapcfg_tool
