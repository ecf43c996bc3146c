// Text order in the manner of a desktop database's general sort order.
#include <vector>

#include "mapcfg/values.h"

namespace mapcfg {

namespace {

// A hyphen or apostrophe taken out of a text, and where it stood.
struct Removed {
  size_t pos;
  char c;
};

// `text` without its hyphens and apostrophes, which go to `removed`.
String Strip(const String& text, std::vector<Removed>& removed) {
  String out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '-' || text[i] == '\'')
      removed.push_back({i, text[i]});
    else
      out += text[i];
  }
  return out;
}

bool IsSymbol(unsigned b) {
  return b <= 0x2F || (b >= 0x3A && b <= 0x40) || (b >= 0x5B && b <= 0x60) || (b >= 0x7B && b <= 0x80);
}

// "a" to "y" become upper case; "z" stays (existing data depends on it).
unsigned FoldLetter(unsigned b) { return (b >= 'a' && b < 'z') ? b - ('a' - 'A') : b; }

// Weight of the character at s[i]; advances i past it.
int Weight(const String& s, size_t& i) {
  const unsigned b = static_cast<unsigned char>(s[i++]);
  if (IsSymbol(b)) return static_cast<int>(b);
  if (b >= 0xA1 && b != 0xFF && i < s.size()) {
    const char second = s[i++];
    if (b == 0xA3)  // full-width forms weigh as their narrow characters
      return static_cast<int>(FoldLetter((static_cast<unsigned char>(second) + 0x80u) & 0xFFu) * 256);
    return (static_cast<int>(b) * 256 + static_cast<signed char>(second)) * 256;
  }
  return static_cast<int>(FoldLetter(b) * 256);
}

int Sign(bool greater) { return greater ? 1 : -1; }

}  // namespace

int sCmpStrByAccess(String a, String b) {
  if (a.empty() && b.empty()) return 0;
  std::vector<Removed> ra, rb;
  const String sa = Strip(a, ra), sb = Strip(b, rb);
  if (sa.empty() != sb.empty()) return sa.empty() ? -1 : 1;
  size_t i = 0, j = 0;
  while (i < sa.size() && j < sb.size()) {
    const int wa = Weight(sa, i), wb = Weight(sb, j);
    if (wa != wb) return Sign(wa > wb);
  }
  if (i < sa.size() || j < sb.size()) return Sign(i < sa.size());
  // Equal weights: the hyphens and apostrophes decide.
  if (ra.size() != rb.size()) return Sign(ra.size() > rb.size());
  for (size_t k = 0; k < ra.size(); ++k) {
    if (ra[k].pos != rb[k].pos) return Sign(ra[k].pos < rb[k].pos);
    if (ra[k].c != rb[k].c) return Sign(ra[k].c > rb[k].c);
  }
  return 0;
}

}  // namespace mapcfg
