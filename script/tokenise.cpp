// Splitting script values into fields.
#include <cstring>

#include "mapcfg/script.h"
#include "base/text_bytes.h"
#include "tokenise_internal.h"

namespace mapcfg {

using detail::IsCtrl;

namespace detail {

String SubStr(const char* text, size_t len, char sep, int start, int* pos, const char* prefix,
              const char* suffix, int ctrl) {
  String out;
  size_t i = start < 0 ? 0 : static_cast<size_t>(start);
  if (start >= 0 && i < len) {
    while (i < len && (text[i] == ' ' || (ctrl && IsCtrl(text[i])))) ++i;
    const size_t first = i;
    while (i < len) {
      char c = text[i];
      if (ctrl && IsCtrl(c)) c = ' ';
      if (c == sep) break;
      ++i;
    }
    out.assign(text + first, i - first);
    if (ctrl)
      for (char& c : out)
        if (IsCtrl(c)) c = ' ';
    detail::TrimRight(out);
  } else {
    i = static_cast<size_t>(start);
  }
  if (pos) *pos = static_cast<int>(i);
  const size_t np = prefix ? std::strlen(prefix) : 0;
  if (np && out.compare(0, np, prefix) == 0 && out.size() >= np) out.erase(0, np);
  const size_t ns = suffix ? std::strlen(suffix) : 0;
  if (ns && out.size() >= ns && out.compare(out.size() - ns, ns, suffix) == 0) out.resize(out.size() - ns);
  return out;
}

}  // namespace detail

using detail::SubStr;

String sGetSubStr(const char* text, char sep, int start, int* pos, const char* prefix, const char* suffix,
                  int ctrl) {
  if (!text) text = "";
  return SubStr(text, std::strlen(text), sep, start, pos, prefix, suffix, ctrl);
}

String sGetSubStr(const String& text, char sep, int start, int* pos, const char* prefix, const char* suffix,
                  int ctrl) {
  return SubStr(text.data(), text.size(), sep, start, pos, prefix, suffix, ctrl);
}

int sGetStrArray(const char* text, StringArray& out, char sep, StringArray* out2, const char* prefix,
                 const char* suffix) {
  if (!text) return 0;
  const size_t len = std::strlen(text);
  int pos = -1;
  int count = 0;
  String field = SubStr(text, len, sep, pos + 1, &pos, prefix, suffix, 1);
  while (!field.empty()) {
    out.push_back(field);
    if (out2) {
      String second = SubStr(text, len, sep, pos + 1, &pos, prefix, suffix, 1);
      out2->push_back(second);
      if (second.empty()) break;
    }
    ++count;
    field = SubStr(text, len, sep, pos + 1, &pos, prefix, suffix, 1);
  }
  return count;
}

}  // namespace mapcfg
