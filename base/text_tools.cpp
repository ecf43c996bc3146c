// Common prefixes, well names and marked drawing text.
#include <cstring>

#include "base/text_bytes.h"
#include "mapcfg/utils.h"

namespace mapcfg {

namespace {

using detail::CharLen;
using detail::UpperAscii;

// Length in bytes of the common prefix, ASCII case ignored; a double-byte
// character counts only when both of its bytes are equal.
size_t SamePrefix(const String& a, const String& b) {
  size_t i = 0;
  while (i < a.size() && i < b.size()) {
    const size_t n = CharLen(a, i);
    if (n == 2) {
      if (i + 1 >= b.size() || a[i] != b[i] || a[i + 1] != b[i + 1]) break;
    } else if (UpperAscii(a[i]) != UpperAscii(b[i])) {
      break;
    }
    i += n;
  }
  return i;
}

// Marks of drawing text.
constexpr char kUpMark = '^';
constexpr char kDownMark = '`';
constexpr char kEscape = '\\';

bool IsMark(char c) { return c == kUpMark || c == kDownMark || c == kEscape; }

// Appends `part` to `out` enclosed in `mark`, escaping the marks inside it.
void AppendMarked(String& out, const String& part, char mark) {
  if (part.empty()) return;
  out += mark;
  for (size_t i = 0; i < part.size();) {
    const size_t n = CharLen(part, i);
    if (n == 1 && IsMark(part[i])) out += kEscape;
    out.append(part, i, n);
    i += n;
  }
  out += mark;
}

}  // namespace

int sLeftFindSameCnt(const String& a, const String& b) { return static_cast<int>(SamePrefix(a, b)); }

String sLeftGetSameStr(const char* a, const char* b) {
  const String ua = detail::UpperCopy(a ? a : "");
  return ua.substr(0, SamePrefix(ua, b ? String(b) : String()));
}

int sLeftCmpStr(const String& a, const String& b, const String& separators, int one_way) {
  const size_t n = SamePrefix(a, b);
  const auto is_sep = [&separators](char c) { return separators.find(c) != String::npos; };
  if (n == a.size() && (separators.empty() || n == b.size() || is_sep(b[n]))) return 1;
  if (!one_way && n == b.size() && (separators.empty() || is_sep(a[n]))) return 1;
  return 0;
}

int sGetWellID(String well, int part, const char* separators, String& id) {
  id.clear();
  if (!separators || !*separators) separators = "-_";
  size_t digit = 0;
  while (digit < well.size() && !(well[digit] >= '0' && well[digit] <= '9')) digit += CharLen(well, digit);
  String name = well.substr(0, digit);
  while (!name.empty() && (name.back() == ' ' || name.back() == '\t')) name.pop_back();
  const String number = well.substr(digit);
  if (part == 0) id = name;
  if (part == -1) id = number;
  if (number.empty()) return 0;
  int count = 1;
  size_t begin = 0;
  for (size_t i = 0; i <= number.size();) {
    const size_t n = i < number.size() ? CharLen(number, i) : 1;
    if (i == number.size() || (n == 1 && std::strchr(separators, number[i]))) {
      if (part == count) id = number.substr(begin, i - begin);
      if (i < number.size()) ++count;
      begin = i + 1;
    }
    i += n;
  }
  return count;
}

void sToUpDownMarkStr(String& text, const char* down, String up) {
  AppendMarked(text, down ? String(down) : String(), kDownMark);
  AppendMarked(text, up, kUpMark);
}

int sDrawFmtText_DiviSubStr(String& text, StringArray& pieces, std::vector<char>& kinds) {
  pieces.clear();
  kinds.clear();
  String plain;
  String run;
  char kind = kDrawTextNormal;
  const auto flush = [&]() {
    if (run.empty()) return;
    plain += run;
    pieces.push_back(run);
    kinds.push_back(kind);
    run.clear();
  };
  for (size_t i = 0; i < text.size();) {
    const size_t n = CharLen(text, i);
    const char c = text[i];
    if (n == 1 && c == kEscape && i + 1 < text.size() && IsMark(text[i + 1])) {
      run += text[i + 1];
      i += 2;
      continue;
    }
    if (n == 1 && (c == kUpMark || c == kDownMark)) {
      flush();
      const char marked = c == kUpMark ? kDrawTextUp : kDrawTextDown;
      kind = kind == marked ? kDrawTextNormal : marked;
    } else {
      run.append(text, i, n);
    }
    i += n;
  }
  flush();
  text = plain;
  return static_cast<int>(pieces.size());
}

}  // namespace mapcfg
