// Small text routines that sit beside the tokenisers: line reading, column
// layout, blank squeezing, field names, number tests and line-break forms.
#include <cstring>

#include "mapcfg/script.h"
#include "base/text_bytes.h"

namespace mapcfg {

using detail::IsCtrl;

namespace {

// Buffer of the line reader: at most 2559 bytes a read.
constexpr int kReadLineBuffer = 2560;

void ReplaceAll(String& text, const char* from, const char* to) {
  const size_t nf = std::strlen(from);
  const size_t nt = std::strlen(to);
  String out;
  out.reserve(text.size());
  size_t i = 0;
  for (size_t hit; (hit = text.find(from, i, nf)) != String::npos; i = hit + nf) {
    out.append(text, i, hit - i);
    out.append(to, nt);
  }
  out.append(text, i, String::npos);
  text.swap(out);
}

}  // namespace

int sReadLineFromFile(std::FILE* stream, String& line) {
  line.clear();
  if (!stream) return 0;
  char buf[kReadLineBuffer];
  while (std::fgets(buf, kReadLineBuffer, stream)) {
    const char* p = buf;
    while (*p == ' ' || IsCtrl(*p)) ++p;
    for (; *p; ++p) line.push_back(IsCtrl(*p) ? ' ' : *p);
    detail::TrimRight(line);
    if (!line.empty()) return 1;
  }
  return 0;
}

String sPrefixLenStr(const char* text, int width) {
  String s = text ? text : "";
  const int len = static_cast<int>(s.size());
  if (width > len) s.insert(0, static_cast<size_t>(width - len), ' ');
  return s;
}

String sSuffixLenStr(const char* text, int width, char fill) {
  String s = text ? text : "";
  const int len = static_cast<int>(s.size());
  if (width > len) s.append(static_cast<size_t>(width - len), fill);
  return s;
}

String sFormatStr(const char* name, const char* value, char fill, int width) {
  String s = name ? name : "";
  const int len = static_cast<int>(s.size());
  s.push_back(' ');
  if (width > len) s.append(static_cast<size_t>(width - len), fill);
  s.push_back(' ');
  s.append(value ? value : "");
  return s;
}

String sFormatString(const char* text, int squeeze) {
  String out;
  if (!text) return out;
  const unsigned char* p = reinterpret_cast<const unsigned char*>(text);
  while (*p && *p <= 32) ++p;
  for (; *p; ++p) {
    if (*p > 32)
      out.push_back(static_cast<char>(*p));
    else if (!squeeze)
      out.push_back(' ');
  }
  detail::TrimRight(out);
  return out;
}

String sGetFmtFldName(const char* text) {
  String out;
  if (!text) return out;
  const char* p = text;
  while (*p == ' ' || IsCtrl(*p)) ++p;
  for (; *p; ++p) {
    const char c = *p;
    const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || static_cast<signed char>(c) < 0;
    const bool tail = (c >= '0' && c <= '9') || c == '_' || c == '%' || c == '(' || c == ')';
    if (!(letter || (tail && !out.empty()))) break;
    out.push_back(c);
  }
  return out;
}

int sIsNumber(String text, int negative) {
  detail::Trim(text);
  if (text.empty()) return 0;
  bool dot = false;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c >= '0' && c <= '9') continue;
    if (c == '.' && !dot) {
      dot = true;
      continue;
    }
    if (c == '-' && negative && i == 0) continue;
    return 0;
  }
  return 1;
}

void sNewLnStrToAct(String& text) {
  ReplaceAll(text, "\\r\\n", "\r\n");
  ReplaceAll(text, "\\n", "\r\n");
}

void sNewLnActToStr(String& text) {
  ReplaceAll(text, "\r\n", "\\n");
  ReplaceAll(text, "\n", "\\n");
}

void sNewLnDrawToAct(String& text) { ReplaceAll(text, "\n", "\r\n"); }

}  // namespace mapcfg
