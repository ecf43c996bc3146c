#include "display_text.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/code_pages.h"

namespace mapcfg_tool {

namespace {

using mapcfg::detail::Utf8Length;

// One unit of a text: an ASCII byte, a character of the text's encoding (its
// bytes and their UTF-8 form) or a byte that is neither.
struct Unit {
  enum Kind { kAscii, kChar, kBad } kind;
  size_t at;         // index of its first byte
  size_t size;       // bytes it takes
  std::string utf8;  // kChar only
};

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
      } else if (i + 1 < bytes.size() && mapcfg::detail::GbkToUtf8(bytes.substr(i, 2), &u.utf8)) {
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

bool LooksLikeUtf8(const std::string& bytes) { return mapcfg::detail::IsUtf8(bytes); }

bool Utf8ToGbk(const std::string& utf8, std::string* gbk) { return mapcfg::detail::Utf8ToGbk(utf8, gbk); }

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
